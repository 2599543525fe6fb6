#pragma once

#include "App/Archive.h"

#include <QObject>

#include <functional>
#include <optional>

namespace fendrel {

class Classifier;
class Clock;
class ModeEngine;
class Preferences;
class Worker;

/// Takes everything of the user's out into a file, and in again. Main thread; files are read and written on the disk
/// worker, and what is told comes later, never after the handle is dropped.
class Backup : public QObject {
    Q_OBJECT
public:
    /// Settings that are not preferences were changed in the store.
    std::function<void()> onSettingsChanged = [] {};

    Backup(ModeEngine& engine, Preferences& preferences, SettingsStore& settings, Classifier& classifier,
           const Clock& clock, Worker& disk, QString folder);

    /// A name for a file that is made now, without its folder.
    QString suggestedName() const;

    /// `done` gets why it failed, as a sentence; nothing when the file is written.
    Handle write(const QString& path, std::function<void(const std::optional<QString>& problem)> done);

    /// Reads a file without using it; the failure is a sentence for the user.
    Handle read(const QString& path, std::function<void(const Result<Archive, QString>&)> done) const;

    /// Replaces the modes, the settings and the learned answers. What was there is kept until the program ends, and in
    /// the file "Before Import.json" of the data folder until the next import.
    void use(const Archive& archive);

    bool canUndo() const { return m_before.has_value(); }
    void undo(); ///< brings back what was there before the last import

Q_SIGNALS:
    void changed(); ///< whether there is something to undo

private:
    QHash<QString, StoredValue> known() const;
    Archive current() const;
    void apply(const Archive& archive);

    ModeEngine& m_engine;
    Preferences& m_preferences;
    SettingsStore& m_settings;
    Classifier& m_classifier;
    const Clock& m_clock;
    Worker& m_disk;
    QString m_folder;
    std::optional<Archive> m_before;
};

} // namespace fendrel
