#pragma once

#include <QString>

#include <functional>

namespace fendrel {

/// The record that is kept of the notifications that other programs show: an SQLite database with the tables
/// `record` (rec_id, app_id, uuid, data, request_date, delivered_date) and `app` (app_id, identifier). Dates count
/// seconds since 2001-01-01 UTC; `data` is a binary property list, whose dictionary "req" holds the strings "titl",
/// "subt" and "body", and where "crit" is true in what a service of the system calls critical. A notification that
/// was replaced keeps its rec_id and gets a new uuid. Main thread; the file is for others to read, on any thread.
class NotificationLog {
public:
    virtual ~NotificationLog() = default;

    virtual QString databasePath() const = 0; ///< the file need not exist; empty where there is no log
    /// Why nothing is recorded, or may be read; for the user, and empty while all is well.
    virtual QString unavailableReason() const = 0;

    /// Something was recorded a moment ago, or `unavailableReason` changed.
    std::function<void()> onChanged = [] {};
    virtual bool tellsChanges() const = 0; ///< whether every record is followed by `onChanged`
};

} // namespace fendrel
