#include "Base/RecentLog.h"

namespace fendrel {

RecentLog::RecentLog() {
    current = this;
    // NOLINTNEXTLINE(cppcoreguidelines-prefer-member-initializer): the handler needs us first
    m_next = qInstallMessageHandler(&RecentLog::handle);
}

RecentLog::~RecentLog() {
    qInstallMessageHandler(m_next);
    current = nullptr;
}

QStringList RecentLog::lines() const {
    const std::lock_guard lock(m_mutex);
    return {m_lines.begin(), m_lines.end()};
}

void RecentLog::handle(QtMsgType type, const QMessageLogContext& context, const QString& text) {
    current->add(type, context, text);
    if (current->m_next != nullptr)
        current->m_next(type, context, text);
}

void RecentLog::add(QtMsgType type, const QMessageLogContext& context, const QString& text) {
    constexpr std::size_t most = 400;
    const std::lock_guard lock(m_mutex);
    m_lines.push_back(qFormatLogMessage(type, context, text));
    if (m_lines.size() > most)
        m_lines.pop_front();
}

} // namespace fendrel
