#include "Widgets/Usage/UsageLedger.h"

namespace fendrel::usage {

void Ledger::put(QByteArrayView request, const Reply& reply, int file) {
    const Entry entry{.time = reply.time, .tokens = reply.tokens, .output = reply.output, .model = model(reply.model)};
    const auto known = m_entries.find(QByteArray::fromRawData(request.data(), request.size()));
    if (known == m_entries.end()) {
        m_entries.insert(request.toByteArray(), {.entry = entry, .file = file});
    } else {
        subtract(known->entry);
        *known = {.entry = entry, .file = file};
    }
    add(entry);
}

void Ledger::forgetFile(int file) {
    m_entries.removeIf([&](const auto& each) {
        if (each->file != file)
            return false;
        subtract(each->entry);
        return true;
    });
}

void Ledger::forgetBefore(WallTime time) {
    const auto first = std::chrono::floor<QuarterHours>(time);
    if (m_quarters.empty() || m_quarters.begin()->first >= first)
        return;
    m_quarters.erase(m_quarters.begin(), m_quarters.lower_bound(first));
    m_entries.removeIf([&](const auto& each) { return each->entry.time < first; });
    m_models.clear();
}

void Ledger::add(const Entry& entry) {
    Sums& sums = m_quarters[std::chrono::floor<QuarterHours>(entry.time)][entry.model];
    sums.tokens += entry.tokens;
    sums.output += entry.output;
    ++sums.messages;
}

void Ledger::subtract(const Entry& entry) {
    const auto quarter = m_quarters.find(std::chrono::floor<QuarterHours>(entry.time));
    const auto model = quarter->second.find(entry.model);
    Sums& sums = model->second;
    sums.tokens -= entry.tokens;
    sums.output -= entry.output;
    if (--sums.messages == 0)
        quarter->second.erase(model);
    if (quarter->second.empty())
        m_quarters.erase(quarter);
}

QString Ledger::model(std::string_view name) {
    const auto size = static_cast<qsizetype>(name.size());
    const auto known = m_models.constFind(QByteArray::fromRawData(name.data(), size));
    return known != m_models.constEnd() ? *known
                                        : *m_models.insert(QByteArray(name.data(), size), QString::fromUtf8(name));
}

} // namespace fendrel::usage
