#include "UI/Settings/DataController.h"

#include "App/AppController.h"
#include "UI/Settings/FileAsking.h"
#include "UI/ShownPath.h"

#include <QPointer>
#include <QStandardPaths>

namespace fendrel {

using namespace Qt::StringLiterals;
using NoFile = FileChooser::NoFile;

namespace {

FileQuestion::Filter backups() {
    return {.name = DataController::tr("Fendrel backups"), .globs = {u"*.json"_s}};
}

QString unusable() {
    return DataController::tr("This file can't be used: it isn't on this computer, or its name can't be read.");
}

} // namespace

DataController::DataController(AppController& controller, FileAsking& files)
    : m_controller(controller), m_files(files) {
    connect(&controller.backup(), &Backup::changed, this, &DataController::changed);
}

bool DataController::canUndo() const {
    return m_controller.backup().canUndo();
}

void DataController::exportFor(QQuickItem* button) {
    const QString folder = QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation);
    const QString name = m_controller.backup().suggestedName();
    const FileQuestion question{.title = tr("Export Modes, Settings and Answers"),
                                .filters = {backups()},
                                .suggestedName = name,
                                .folder = folder};
    m_files.save(*button, question, [this, folder, name](const FileChooser::Choice& choice) {
        if (choice)
            exportTo(*choice);
        else if (choice.error() == NoFile::failed)
            exportTo(folder + u'/' + name);
        else if (choice.error() == NoFile::unusable)
            tell(unusable(), true);
    });
}

void DataController::exportTo(const QString& path) {
    m_underWay = m_controller.backup().write(path, [this, path](const std::optional<QString>& problem) {
        m_exported = problem ? QString() : path;
        tell(problem ? *problem : tr("Saved as %1.").arg(shownPath(path)), problem.has_value());
    });
}

void DataController::reveal() {
    m_controller.platform().shell->reveal({m_exported});
}

void DataController::importFor(QQuickItem* button) {
    const FileQuestion question{.title = tr("Import a Backup"),
                                .filters = {backups(), {.name = tr("All files"), .globs = {u"*"_s}}}};
    m_files.open(*button, question, [this](const FileChooser::Choice& choice) {
        if (choice)
            importPath(*choice);
        else if (choice.error() == NoFile::failed)
            Q_EMIT pathWanted();
        else if (choice.error() == NoFile::unusable)
            tell(unusable(), true);
    });
}

void DataController::importFrom(const QString& typed) {
    importPath(typedPath(typed));
}

void DataController::importPath(const QString& path) {
    m_underWay = m_controller.backup().read(path, [this](const Result<Archive, QString>& read) {
        if (read)
            askToUse(*read);
        else
            tell(read.error(), true);
    });
}

void DataController::askToUse(const Archive& archive) {
    const QStringList parts{tr("%n mode(s)", nullptr, static_cast<int>(archive.modes.size())),
                            tr("%n setting(s)", nullptr, static_cast<int>(archive.settings.size())),
                            tr("%n learned answer(s)", nullptr, static_cast<int>(archive.answers.size()))};
    QString text =
        tr("The file has %1, %2 and %3. They replace yours.").arg(parts[0], parts[1], parts[2]) + u"\n\n"_s +
        tr("You can undo this until you quit Fendrel. Keys of accounts are not in the file, and yours stay.");
    if (archive.skipped > 0)
        text +=
            u"\n\n"_s + tr("%n entry(ies) can't be read and stay(s) out.", nullptr, static_cast<int>(archive.skipped));
    m_controller.onAlert({.message = tr("Import this backup?"),
                          .informativeText = text,
                          .buttons = {tr("Import"), tr("Cancel")},
                          .isGrave = true,
                          .answered = [self = QPointer(this), archive](int button) {
                              if (!self || button != 0)
                                  return;
                              self->m_controller.backup().use(archive);
                              self->tell(tr("Imported."));
                          }});
}

void DataController::undoImport() {
    m_controller.backup().undo();
    tell(tr("Everything is as it was before the import."));
}

void DataController::tell(const QString& state, bool hasFailed) {
    m_state = state;
    m_hasFailed = hasFailed;
    Q_EMIT changed();
}

} // namespace fendrel
