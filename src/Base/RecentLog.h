#pragma once

#include <QMessageLogContext>
#include <QString>
#include <QStringList>

#include <deque>
#include <mutex>

namespace fendrel {

/// Remembers what was logged last, for a report on a problem, and passes everything on. There is one at a time, because
/// the toolkit has one place for it. May be read on any thread.
class RecentLog {
public:
    RecentLog();
    ~RecentLog(); ///< the log goes on as it was before
    RecentLog(const RecentLog&) = delete;
    RecentLog& operator=(const RecentLog&) = delete;

    QStringList lines() const; ///< oldest first

private:
    static void handle(QtMsgType type, const QMessageLogContext& context, const QString& text);
    void add(QtMsgType type, const QMessageLogContext& context, const QString& text);

    static inline RecentLog* current = nullptr;
    QtMessageHandler m_next;
    mutable std::mutex m_mutex;
    std::deque<QString> m_lines;
};

} // namespace fendrel
