#pragma once

#include <QString>
#include <QStringList>

namespace fendrel {

/// Where calendars are on this disk.
struct CalendarPlaces {
    QStringList paths{};     ///< of folders of iCalendar files, and of single files
    QStringList addresses{}; ///< the user's, as far as programs were told them; lower-case
    bool operator==(const CalendarPlaces&) const = default;
};

/// Where programs that sync calendars put them: what the settings of vdirsyncer, khal and todoman name, and the usual
/// folders. Only what exists. Reads the disk.
CalendarPlaces usualCalendarPlaces(const QString& home, const QString& configFolder, const QString& dataFolder);

/// What one of those settings names: paths with a pattern up to where that begins. What holds contacts is left out.
CalendarPlaces placesInSettings(const QString& text, const QString& home);

} // namespace fendrel
