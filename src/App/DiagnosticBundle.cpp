#include "App/DiagnosticBundle.h"

#include <QDateTime>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QProcess>
#include <QSaveFile>
#include <QTemporaryDir>

namespace fendrel {

using namespace Qt::StringLiterals;

namespace {

/// Nothing when all went well, else why not. Blocks.
std::optional<QString> writeArchive(const QMap<QString, QByteArray>& files, const QString& path) {
    const QString name = u"fendrel-diagnostics"_s;
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
    // It would name the user beside each file.
    tar.start(u"tar"_s, {u"-cz"_s, u"--owner=0"_s, u"--group=0"_s, u"--numeric-owner"_s, u"-C"_s, work.path(), name});
    if (!tar.waitForFinished())
        return tar.errorString();
    if (tar.exitStatus() != QProcess::NormalExit || tar.exitCode() != 0)
        return QString::fromLocal8Bit(tar.readAllStandardError()).trimmed();
    QSaveFile out(path); // what the user replaces stays until there is something in its place
    if (!out.open(QIODevice::WriteOnly))
        return out.errorString();
    out.write(tar.readAllStandardOutput());
    return out.commit() ? std::nullopt : std::optional(out.errorString());
}

} // namespace

DiagnosticBundle::DiagnosticBundle() : m_worker(u"diagnostics"_s) {}

QString DiagnosticBundle::suggestedName(WallTime now) {
    return u"fendrel-diagnostics-%1.tar.gz"_s.arg(toDateTime(now).toLocalTime().toString(u"yyyyMMdd-HHmmss"_s));
}

void DiagnosticBundle::write(const QMap<QString, QByteArray>& files, const QString& path, Done done) {
    m_worker.post({}, [this, files, path, done = std::move(done)] {
        const QString folder = QFileInfo(path).path();
        const auto problem = QDir().mkpath(folder) ? writeArchive(files, path)
                                                   : std::optional(tr("The folder %1 cannot be written.").arg(folder));
        QMetaObject::invokeMethod(
            this, [done, problem] { done(problem); }, Qt::QueuedConnection);
    });
}

} // namespace fendrel
