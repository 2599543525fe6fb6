#pragma once

#include "Base/WallTime.h"

#include <QHash>
#include <QList>
#include <QString>
#include <QStringList>

#include <optional>

class QJsonObject;

namespace fendrel {

/// What was open in a mode when the user left it.
struct ModeSnapshot {
    struct Page {
        QString url{};
        QString title{};
        bool operator==(const Page&) const = default;
    };
    struct Document {
        QString bundleID{};
        QString url{};
        bool operator==(const Document&) const = default;
    };

    QString modeID{};
    WallTime savedAt{};
    QStringList apps{}; ///< bundle identifiers
    QStringList titles{};
    QList<Page> pages{}; ///< the latest first
    QList<Document> documents{};
    std::optional<QString> note{}; ///< what the user worked on, in a few words
    bool operator==(const ModeSnapshot&) const = default;

    /// Whether there is anything that could be opened again.
    bool isEmpty() const { return apps.isEmpty() && pages.isEmpty() && documents.isEmpty(); }
};

using ModeSnapshots = QHash<QString, ModeSnapshot>; ///< by mode identifier

/// Puts a page before those that were seen earlier, in place of the one of the same address; the oldest beyond the
/// thirtieth goes. Only pages of the web count, and nobody's name and password stay in their addresses.
void addPage(QList<ModeSnapshot::Page>& pages, const ModeSnapshot::Page& page);

/// The file's content: a JSON object with a member for each mode.
QByteArray encode(const ModeSnapshots& snapshots);
/// Leaves out what is no snapshot, and what in one is no page or document.
ModeSnapshots decodeSnapshots(const QJsonObject& object);

} // namespace fendrel
