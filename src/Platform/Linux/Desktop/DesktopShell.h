#pragma once

#include "Platform/Linux/Applications/ApplicationCatalog.h"
#include "Ports/Shell.h"

#include <QObject>

#include <memory>

namespace fendrel {

/// The desktop's own ways to open things: its file manager over D-Bus, and the freedesktop.org command-line tools,
/// which know every desktop's settings.
class DesktopShell : public QObject, public Shell {
    Q_OBJECT
public:
    DesktopShell(std::shared_ptr<ApplicationCatalog> catalog, Clock& clock);

    void openAddress(const QUrl& address) override;
    void reveal(const QStringList& paths) override;
    void composeMail(const Mail& mail, std::function<void(bool isTaken)> done) override;

private:
    bool hasMailProgramFor(const Mail& mail) const;

    std::shared_ptr<ApplicationCatalog> m_catalog;
    Clock& m_clock;
};

/// The command line of the freedesktop.org mail tool.
QStringList mailCommand(const Mail& mail);

} // namespace fendrel
