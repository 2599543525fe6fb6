#include "Modes/ModeContext.h"

#include "App/Workspace.h"
#include "Base/JsonFile.h"
#include "Base/Log.h"
#include "Base/Worker.h"
#include "Modes/ModeEngine.h"
#include "Modes/NoteQuestion.h"
#include "Modes/SiteName.h"
#include "Ports/Documents.h"

#include <algorithm>
#include <utility>

namespace fendrel {

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace {

constexpr auto worthSaving = 120s;
constexpr auto settled = 20s;
constexpr auto patience = 3s;
constexpr auto stays = 30s;
constexpr auto staysAfterHover = 4s;
constexpr qsizetype mostTitles = 100;

/// A page that another mode lists was drifted to, and is nothing to come back to.
bool belongs(const QString& url, const Mode& mode, const ModeEngine& engine) {
    const QString host = siteName(QUrl(url)).value_or(QString());
    return Mode::site(host, mode.sites) || !engine.listingSite(host);
}

/// What of a snapshot still belongs to the mode, which may have been edited since.
ModeSnapshot fitting(ModeSnapshot snapshot, const Mode& mode, const ModeEngine& engine) {
    snapshot.apps.removeIf([&](const QString& app) { return !mode.apps.contains(app); });
    snapshot.documents.removeIf([&](const auto& document) { return !mode.apps.contains(document.bundleID); });
    snapshot.pages.removeIf([&](const auto& page) { return !belongs(page.url, mode, engine); });
    return snapshot;
}

} // namespace

ModeContext::ModeContext(ModeEngine& engine, Workspace& workspace, Documents& documents, LanguageModel& model,
                         Clock& clock, Worker& disk, const QString& folder)
    : m_engine(engine),
      m_workspace(workspace),
      m_documents(documents),
      m_model(model),
      m_clock(clock),
      m_disk(disk),
      m_path(folder + u"/Contexts.json"_s),
      m_modeID(engine.current().id),
      m_enteredAt(clock.continuousNow()) {
    const auto file = JsonFile::read(m_path);
    if (file)
        m_snapshots = decodeSnapshots(*file);
    else if (file.error() == JsonFile::ReadError::unreadable)
        JsonFile::keepAside(m_path);
    sortByModes();
}

void ModeContext::modeChanged(const Mode& newMode) {
    if (newMode.id == m_modeID)
        return;
    const ContinuousTime now = m_clock.continuousNow();
    const Mode* left = m_engine.mode(m_modeID); // nothing when it was deleted
    if (left && now - m_enteredAt >= worthSaving)
        save(*left);
    m_modeID = newMode.id;
    m_enteredAt = now;
    m_pages.clear();
    // Nobody tells again of a page that stays in front. One that is soon left was of the mode before.
    m_settling = m_clock.after(settled, [this] {
        if (const auto page = frontPage())
            saw(*page);
    });
    offerBack(newMode);
}

void ModeContext::saw(const Page& page) {
    if (belongs(page.url, m_engine.current(), m_engine))
        addPage(m_pages, page);
}

void ModeContext::save(const Mode& mode) {
    Snapshot snapshot{.modeID = mode.id, .savedAt = m_clock.now(), .pages = m_pages};
    QList<DocumentOwner> owners;
    for (const QString& bundleID : m_workspace.runningApps()) {
        if (!mode.apps.contains(bundleID))
            continue;
        snapshot.apps.append(bundleID);
        // Of a browser only the pages count that it tells of itself: its windows may be private ones.
        if (m_workspace.isBrowser(bundleID))
            continue;
        owners.append(ownerOf(bundleID));
        snapshot.titles += owners.last().titles;
    }
    for (const Page& page : snapshot.pages)
        snapshot.titles.append(page.title);
    snapshot.titles.removeAll(QString());
    snapshot.titles.removeDuplicates();
    if (snapshot.titles.size() > mostTitles)
        snapshot.titles.resize(mostTitles);

    m_snapshots.insert(mode.id, snapshot);
    tell();
    m_findings[mode.id] = m_documents.find(owners, [this, id = mode.id](const QList<OpenDocument>& found) {
        if (found.isEmpty() || !m_snapshots.contains(id))
            return;
        for (const OpenDocument& document : found)
            m_snapshots[id].documents.append(
                {.bundleID = document.bundleID, .url = document.file.toString(QUrl::FullyEncoded)});
        tell();
    });
    m_notes[mode.id].reset();
    writeNote(snapshot);
}

DocumentOwner ModeContext::ownerOf(const QString& bundleID) const {
    DocumentOwner owner{.bundleID = bundleID};
    for (const RunningApp& app : m_workspace.instances(bundleID))
        owner.pids.append(app.pid);
    for (const WindowInfo& window : m_workspace.windows(bundleID))
        owner.titles.append(window.title);
    return owner;
}

void ModeContext::writeNote(const Snapshot& snapshot) {
    if (snapshot.titles.isEmpty() || !m_model.isAvailable())
        return;
    m_notes[snapshot.modeID] =
        m_model.ask(NoteQuestion::about(snapshot.titles), [this, id = snapshot.modeID](const auto& answer) {
            if (!answer) {
                qCWarning(logModes).noquote() << "Model couldn't write a note:" << answer.error();
            } else if (const auto saved = m_snapshots.find(id); saved != m_snapshots.end()) {
                saved->note = NoteQuestion::note(*answer);
                tell();
            }
        });
}

void ModeContext::offerBack(const Mode& mode) {
    dismiss();
    const auto saved = m_snapshots.constFind(mode.id);
    if (saved == m_snapshots.constEnd())
        return;
    Offer offer{.mode = mode, .snapshot = fitting(*saved, mode, m_engine)};
    if (offer.snapshot.isEmpty())
        return;
    m_offer = std::move(offer);
    scheduleHide(stays);
    Q_EMIT changed();
}

void ModeContext::restore() {
    if (m_offer)
        restore(QString(m_offer->mode.id));
}

bool ModeContext::restore(const QString& modeID) {
    const Mode* mode = m_engine.mode(modeID);
    if (!mode || !m_snapshots.contains(modeID))
        return false;
    const Snapshot snapshot = fitting(m_snapshots[modeID], *mode, m_engine);
    dismiss();
    QStringList apps = snapshot.apps;
    if (!snapshot.pages.isEmpty())
        openAgain(snapshot.pages, apps);
    QList<DocumentOwner> owners;
    for (const Document& document : snapshot.documents) {
        if (m_workspace.running().contains(document.bundleID))
            owners.append(ownerOf(document.bundleID));
    }
    m_restoring = m_documents.find(owners, [this, apps, documents = snapshot.documents](const auto& found) {
        QList<Document> wanted = documents;
        wanted.removeIf([&](const Document& document) {
            return found.contains({.bundleID = document.bundleID, .file = QUrl(document.url)});
        });
        QList<QUrl> files;
        for (const Document& document : wanted)
            files.append(QUrl(document.url));
        m_restoring = m_documents.findGone(files, [this, apps, wanted](const QList<QUrl>& gone) {
            m_patience.reset();
            open(apps, wanted, gone);
        });
    });
    // A folder in the network that doesn't answer keeps nothing else away.
    m_patience = m_clock.after(patience, [this, apps, documents = snapshot.documents] {
        m_restoring.reset();
        open(apps, documents, {});
    });
    return true;
}

/// Where no browser can be told of the pages, the one that the mode had opens them as it starts, and leaves `apps`.
void ModeContext::openAgain(const QList<Page>& pages, QStringList& apps) {
    QStringList urls;
    for (const Page& page : pages)
        urls.append(page.url);
    if (openPages(urls))
        return;
    const QList<QUrl> addresses = QUrl::fromStringList(urls);
    const auto browser = std::ranges::find_if(apps, [this](const QString& app) { return m_workspace.isBrowser(app); });
    if (browser == apps.end()) {
        std::ranges::for_each(addresses, openAddress);
        return;
    }
    m_workspace.openFiles(*browser, addresses);
    apps.erase(browser);
}

/// The applications, with their documents where those are still there.
void ModeContext::open(const QStringList& apps, const QList<Document>& documents, const QList<QUrl>& gone) {
    for (const QString& app : apps) {
        QList<QUrl> files;
        for (const Document& document : documents) {
            const QUrl file(document.url);
            if (document.bundleID == app && !gone.contains(file))
                files.append(file);
        }
        if (!files.isEmpty())
            m_workspace.openFiles(app, files);
        else if (!m_workspace.hasVisibleWindow(app))
            m_workspace.open(app);
    }
    if (gone.isEmpty())
        return;
    for (const QUrl& file : gone)
        m_missing.append(file.fileName());
    scheduleHide(stays);
    Q_EMIT changed();
}

void ModeContext::dismiss() {
    m_hide.reset();
    m_isHovered = false;
    if (!m_offer && m_missing.isEmpty())
        return;
    m_offer.reset();
    m_missing.clear();
    Q_EMIT changed();
}

bool ModeContext::forget(const QString& modeID) {
    if (modeID == m_modeID)
        m_pages.clear();
    m_ofGoneModes.remove(modeID);
    m_findings.erase(modeID);
    m_notes.erase(modeID);
    if (!m_snapshots.remove(modeID))
        return false;
    if (m_offer && m_offer->mode.id == modeID)
        dismiss();
    tell();
    return true;
}

void ModeContext::forgetAll() {
    m_pages.clear();
    m_ofGoneModes.clear();
    m_findings.clear();
    m_notes.clear();
    m_snapshots.clear();
    dismiss();
    tell();
}

void ModeContext::setHovered(bool isHovered) {
    if (std::exchange(m_isHovered, isHovered) == isHovered || (!m_offer && m_missing.isEmpty()))
        return;
    if (isHovered)
        m_hide.reset();
    else
        scheduleHide(staysAfterHover);
}

void ModeContext::scheduleHide(Clock::Duration after) {
    m_hide = m_clock.after(after, [this] { dismiss(); });
}

void ModeContext::modesEdited() {
    if (sortByModes())
        tell();
    if (!m_offer)
        return;
    const Mode* mode = m_engine.mode(m_offer->mode.id);
    if (!mode || !m_snapshots.contains(mode->id)) {
        dismiss();
        return;
    }
    Offer offer{.mode = *mode, .snapshot = fitting(m_snapshots[mode->id], *mode, m_engine)};
    if (m_offer != offer) {
        m_offer = std::move(offer);
        Q_EMIT changed();
    }
}

/// Parts with the snapshots of modes that are gone, and takes back those of modes that have come back. Whether there
/// were any.
bool ModeContext::sortByModes() {
    const auto move = [this](ModeSnapshots& from, ModeSnapshots& to, bool exists) {
        bool isAny = false;
        for (const QString& id : from.keys()) {
            if ((m_engine.mode(id) != nullptr) == exists) {
                to.insert(id, from.take(id));
                isAny = true;
            }
        }
        return isAny;
    };
    const bool haveGone = move(m_snapshots, m_ofGoneModes, false);
    return move(m_ofGoneModes, m_snapshots, true) || haveGone;
}

/// Of a change of the snapshots, to the file and to whoever shows them.
void ModeContext::tell() {
    m_disk.post(m_path, [path = m_path, snapshots = m_snapshots] { JsonFile::write(path, encode(snapshots)); });
    if (m_offer) {
        const auto saved = m_snapshots.constFind(m_offer->mode.id);
        if (saved != m_snapshots.constEnd())
            m_offer->snapshot = fitting(*saved, m_offer->mode, m_engine);
    }
    Q_EMIT changed();
}

} // namespace fendrel
