#include "UI/Settings/AboutController.h"

#include "App/AppController.h"
#include "App/Diagnostics.h"
#include "Base/JsonFile.h"
#include "UI/Settings/Dependencies.h"
#include "UI/Settings/FileAsking.h"

#include <QFileInfo>
#include <QStandardPaths>
#include <QUrl>

namespace fendrel {

using namespace Qt::StringLiterals;

AboutController::AboutController(AppController& controller, Capabilities& capabilities, FileAsking& files)
    : m_controller(controller), m_capabilities(capabilities), m_files(files), m_worker(u"about"_s) {
    m_capabilities.refresh(); // by the time that a report is wanted, the answers are there
    m_worker.post({}, [this, all = fendrel::dependencies(), extension = controller.platform().extension] {
        QVariantList rows;
        for (const Dependency& dependency : all) {
            const QString text = u"/usr/share/doc/%1/copyright"_s.arg(dependency.packages.value(0));
            rows.append(QVariantMap{
                {u"name"_s, dependency.name},
                {u"licence"_s, dependency.licence},
                {u"purpose"_s, dependency.purpose},
                {u"address"_s, QFileInfo::exists(text) ? QUrl::fromLocalFile(text).toString() : QString()}});
        }
        const auto manifest = JsonFile::read(extension + u"/manifest.json"_s);
        const QString version = manifest ? (*manifest)[u"version"].toString() : QString();
        QMetaObject::invokeMethod(
            this,
            [this, rows, version] {
                m_dependencies = rows;
                m_extensionVersion = version;
                Q_EMIT changed();
            },
            Qt::QueuedConnection);
    });
}

QVariantList AboutController::folders() const {
    const Folders& folders = m_controller.platform().folders;
    const auto row = [](const QString& name, const QString& path) {
        return QVariantMap{{u"name"_s, name}, {u"path"_s, path}};
    };
    return {row(tr("Modes and answers"), folders.data), row(tr("Settings"), folders.config),
            row(tr("Crash reports"), folders.crashes)};
}

void AboutController::openFolder(const QString& path) {
    m_controller.platform().shell->openAddress(QUrl::fromLocalFile(path));
}

void AboutController::openAddress(const QString& address) {
    m_controller.platform().shell->openAddress(QUrl(address));
}

void AboutController::writeReportFor(QQuickItem* button) {
    using NoFile = FileChooser::NoFile;
    const QString folder = QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation);
    const QString name = DiagnosticBundle::suggestedName(m_controller.platform().clock->now());
    const FileQuestion question{.title = tr("Save the Diagnostic Bundle"), .suggestedName = name, .folder = folder};
    m_files.save(*button, question, [this, folder, name](const FileChooser::Choice& choice) {
        if (choice) {
            writeReport(*choice, false);
        } else if (choice.error() == NoFile::failed) {
            writeReport(folder + u'/' + name, true);
        } else if (choice.error() == NoFile::unusable) {
            m_problem = tr("It isn't on this computer, or its name can't be read.");
            Q_EMIT changed();
        }
    });
}

void AboutController::writeReport(const QString& path, bool reveals) {
    if (std::exchange(m_isWriting, true))
        return;
    m_report.clear();
    m_problem.clear();
    Q_EMIT changed();
    const auto files = diagnosticFiles(diagnosticFacts(m_controller, m_capabilities.all()));
    m_bundle.write(files, path, [this, path, reveals](const std::optional<QString>& problem) {
        m_isWriting = false;
        m_problem = problem.value_or(QString());
        if (!problem) {
            m_report = path;
            if (reveals)
                m_controller.platform().shell->reveal({path});
        }
        Q_EMIT changed();
    });
}

} // namespace fendrel
