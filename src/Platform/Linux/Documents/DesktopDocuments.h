#pragma once

#include "Base/Worker.h"
#include "Ports/Documents.h"

#include <optional>

namespace fendrel {

/// The documents of programs that don't tell of them: the files that they hold open, and those that their windows are
/// called after, of what was used recently or what they were started with. Editors close a file once they have read
/// it, viewers and office programs hold it; no window of a program but a browser's tells its address to screen readers.
class DesktopDocuments final : public Documents {
public:
    /// Of the user's home folder, and the file with the list of what was used recently.
    DesktopDocuments(QString home, QString recentList);
    static QString standardRecentList();

    Handle find(const QList<DocumentOwner>& owners, Found done) override;
    Handle findGone(const QList<QUrl>& files, Gone done) override;

private:
    Worker& worker();

    QString m_home;
    QString m_recentList;
    std::optional<Worker> m_worker; ///< since the first question
};

} // namespace fendrel
