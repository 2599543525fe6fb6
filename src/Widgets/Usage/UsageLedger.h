#pragma once

#include "Widgets/Usage/UsageLine.h"
#include "Widgets/Usage/UsageSummary.h"

#include <QByteArray>
#include <QHash>

namespace fendrel::usage {

/// One entry for each request, and their sums, which follow every change: adding all entries up again would cost more
/// than a minute's new lines. One thread.
class Ledger {
public:
    /// A reply that `file` tells of, under what its request is known by. It takes the place of an earlier one.
    void put(QByteArrayView request, const Reply& reply, int file);

    /// Forgets what this file was the last to tell.
    void forgetFile(int file);
    /// Forgets what happened before, by whole quarters of an hour.
    void forgetBefore(WallTime time);

    const Quarters& quarters() const { return m_quarters; }

private:
    struct Stored {
        Entry entry{};
        int file{};
    };

    void add(const Entry& entry);
    void subtract(const Entry& entry);
    QString model(std::string_view name);

    QHash<QByteArray, Stored> m_entries;
    QHash<QByteArray, QString> m_models; ///< one text for all entries of a model
    Quarters m_quarters;
};

} // namespace fendrel::usage
