#include "App/DiagnosticBundle.h"

#include <QDateTime>
#include <QDir>
#include <QFile>
#include <QProcess>
#include <QTemporaryDir>

namespace fendrel {

using namespace Qt::StringLiterals;

namespace {

/// Nothing when all went well, else why not. Blocks.
QString writeArchive(const QMap<QString, QByteArray>& files, const QString& path, const QString& name) {
    const QTemporaryDir work;
    const QString folder = work.filePath(name);
    if (!work.isValid() || !QDir().mkpath(folder))
        return work.errorString();
    for (auto file = files.begin(); file != files.end(); ++file) {
        QFile out(folder + u'/' + file.key());
        if (!out.open(QIODevice::WriteOnly) || out.write(file.value()) != file.value().size() || !out.flush())
            return out.errorString();
    }
    QProcess tar;
    tar.start(u"tar"_s, {u"-czf"_s, path, u"-C"_s, work.path(), name});
    if (!tar.waitForFinished())
        return tar.errorString();
    if (tar.exitStatus() != QProcess::NormalExit || tar.exitCode() != 0)
        return QString::fromLocal8Bit(tar.readAllStandardError()).trimmed();
    return {};
}

} // namespace

DiagnosticBundle::DiagnosticBundle() : m_worker(u"diagnostics"_s) {}

void DiagnosticBundle::write(const QMap<QString, QByteArray>& files, const QString& folder, WallTime now, Done done) {
    const QString name = u"fendrel-diagnostics-"_s + toDateTime(now).toLocalTime().toString(u"yyyyMMdd-HHmmss"_s);
    m_worker.post({}, [this, files, folder, name, done = std::move(done)] {
        const QString path = folder + u'/' + name + u".tar.gz"_s;
        const QString problem = QDir().mkpath(folder) ? writeArchive(files, path, name)
                                                      : tr("The folder %1 cannot be written.").arg(folder);
        const auto result =
            problem.isEmpty() ? Result<QString, QString>(path) : Result<QString, QString>::failure(problem);
        QMetaObject::invokeMethod(
            this, [done, result] { done(result); }, Qt::QueuedConnection);
    });
}

} // namespace fendrel
