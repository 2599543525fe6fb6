#include "App/Backup.h"

#include "App/Preferences.h"
#include "Base/JsonFile.h"
#include "Base/OnWorker.h"
#include "Focus/Classifier.h"
#include "Modes/ModeEngine.h"
#include "Widgets/Widgets.h"

#include <QFile>
#include <QFileInfo>

#include <utility>

namespace fendrel {

using namespace Qt::StringLiterals;

Backup::Backup(ModeEngine& engine, Preferences& preferences, SettingsStore& settings, Classifier& classifier,
               const Clock& clock, Worker& disk, QString folder)
    : m_engine(engine),
      m_preferences(preferences),
      m_settings(settings),
      m_classifier(classifier),
      m_clock(clock),
      m_disk(disk),
      m_folder(std::move(folder)) {}

QString Backup::suggestedName() const {
    const QDateTime now = toDateTime(m_clock.now()).toLocalTime();
    return tr("Fendrel Backup %1").arg(now.toString(u"yyyy-MM-dd HH.mm"_s)) + u".json"_s;
}

Handle Backup::write(const QString& path, std::function<void(const std::optional<QString>&)> done) {
    using Problem = std::optional<QString>;
    return onWorker<Problem>(
        m_disk,
        [path, archive = current(), date = m_clock.now()]() -> Problem {
            if (JsonFile::write(path, archive.encode(date)))
                return {};
            return tr("“%1” could not be written. Is there room, and may you write there?").arg(path);
        },
        std::move(done));
}

Handle Backup::read(const QString& path, std::function<void(const Result<Archive, QString>&)> done) const {
    using Answer = Result<Archive, QString>;
    return onWorker<Answer>(
        m_disk,
        [path, settings = known()] {
            QFile file(path);
            // Neither a folder nor a pipe, which would be waited for.
            if (!QFileInfo(path).isFile() || !file.open(QIODevice::ReadOnly))
                return Answer::failure(tr("“%1” could not be opened.").arg(path));
            if (file.size() > Archive::longestFile)
                return Answer::failure(tr("This file is too large to be a Fendrel backup."));
            return Archive::decode(file.read(Archive::longestFile), settings);
        },
        std::move(done));
}

void Backup::use(const Archive& archive) {
    m_before = current();
    const QString copy = m_folder + u"/Before Import.json"_s;
    m_disk.post(copy, [copy, before = *m_before, date = m_clock.now()] { JsonFile::write(copy, before.encode(date)); });
    apply(archive);
    Q_EMIT changed();
}

void Backup::undo() {
    if (const auto before = std::exchange(m_before, {})) {
        apply(*before);
        Q_EMIT changed();
    }
}

/// What the user sets is in the preferences, or the widgets' own. All else in the store is this computer's, or of
/// today.
QHash<QString, StoredValue> Backup::known() const {
    QHash<QString, StoredValue> settings = m_preferences.values();
    settings.insert(Widgets::settings());
    return settings;
}

Archive Backup::current() const {
    QHash<QString, std::optional<StoredValue>> settings;
    for (const QString& key : known().keys())
        settings.insert(key, m_settings.value(key));
    return {.modes = m_engine.modes(), .settings = settings, .answers = m_classifier.answers()};
}

void Backup::apply(const Archive& archive) {
    for (auto setting = archive.settings.begin(); setting != archive.settings.end(); ++setting) {
        if (*setting)
            m_settings.set(setting.key(), **setting);
        else
            m_settings.remove(setting.key());
    }
    m_preferences.reload();
    onSettingsChanged();
    m_engine.replaceModes(archive.modes); // before the answers, which name them
    m_classifier.replaceAnswers(archive.answers);
}

} // namespace fendrel
