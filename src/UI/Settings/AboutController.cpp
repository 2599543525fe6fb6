#include "UI/Settings/AboutController.h"

#include "App/AppController.h"
#include "App/Diagnostics.h"
#include "Base/JsonFile.h"
#include "UI/Settings/Dependencies.h"

#include <QFileInfo>
#include <QStandardPaths>
#include <QUrl>

namespace fendrel {

using namespace Qt::StringLiterals;

AboutController::AboutController(AppController& controller, Capabilities& capabilities)
    : m_controller(controller), m_capabilities(capabilities), m_worker(u"about"_s) {
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

void AboutController::writeReport() {
    if (std::exchange(m_isWriting, true))
        return;
    m_report.clear();
    m_problem.clear();
    Q_EMIT changed();
    const auto files = diagnosticFiles(diagnosticFacts(m_controller, m_capabilities.all()));
    const QString folder = QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation);
    m_bundle.write(files, folder, m_controller.platform().clock->now(), [this](const auto& result) {
        m_isWriting = false;
        if (result) {
            m_report = *result;
            m_controller.platform().shell->reveal({m_report});
        } else {
            m_problem = result.error();
        }
        Q_EMIT changed();
    });
}

} // namespace fendrel
