#include "Platform/Linux/Documents/DesktopDocuments.h"

#include "Base/OnWorker.h"
#include "Platform/Linux/Documents/OpenFiles.h"
#include "Platform/Linux/Documents/RecentFiles.h"
#include "Platform/Linux/Documents/TitledFile.h"

#include <QDeadlineTimer>
#include <QFile>
#include <QFileInfo>
#include <QStandardPaths>

#include <utility>

namespace fendrel {

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace {

constexpr auto patience = 2s;
constexpr qint64 longestList = 4'000'000; // bytes
constexpr qsizetype mostOfOne = 20;

QStringList documentsOf(const DocumentOwner& owner, const QStringList& recent, const QString& home) {
    QStringList held;
    QStringList known;
    for (const qint64 pid : owner.pids) {
        held += openFiles::held(pid, home);
        known += openFiles::startedWith(pid);
    }
    known += recent;
    for (const QString& title : owner.titles) {
        const auto file = titledFile(title, known);
        if (file && QFileInfo(*file).isFile() && !held.contains(QFileInfo(*file).canonicalFilePath()))
            held.append(*file);
    }
    held.removeDuplicates();
    return held.first(qMin(held.size(), mostOfOne));
}

} // namespace

DesktopDocuments::DesktopDocuments(QString home, QString recentList)
    : m_home(std::move(home)), m_recentList(std::move(recentList)) {}

QString DesktopDocuments::standardRecentList() {
    return QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation) + u"/recently-used.xbel"_s;
}

Worker& DesktopDocuments::worker() {
    return m_worker ? *m_worker : m_worker.emplace(u"documents"_s);
}

Handle DesktopDocuments::find(const QList<DocumentOwner>& owners, Found done) {
    return onWorker<QList<OpenDocument>>(
        worker(),
        [owners, folder = m_home, list = m_recentList] {
            const QDeadlineTimer deadline(patience);
            const QString home = QFileInfo(folder).canonicalFilePath(); // as the system names what is open
            QFile file(list);
            const QStringList recent = !owners.isEmpty() && file.open(QIODevice::ReadOnly)
                                           ? recentFiles(file.read(longestList))
                                           : QStringList();
            QList<OpenDocument> found;
            for (const DocumentOwner& owner : owners) {
                if (deadline.hasExpired())
                    break;
                for (const QString& path : documentsOf(owner, recent, home))
                    found.append({.bundleID = owner.bundleID, .file = QUrl::fromLocalFile(path)});
            }
            return found;
        },
        std::move(done));
}

Handle DesktopDocuments::findGone(const QList<QUrl>& files, Gone done) {
    return onWorker<QList<QUrl>>(
        worker(),
        [files] {
            QList<QUrl> gone = files;
            gone.removeIf([](const QUrl& file) { return QFileInfo::exists(file.toLocalFile()); });
            return gone;
        },
        std::move(done));
}

} // namespace fendrel
