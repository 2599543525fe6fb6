#pragma once

#include "Ports/FileChooser.h"

#include <QDBusServiceWatcher>
#include <QObject>

namespace fendrel {

/// The file dialog that the desktop portal shows, which is that of the user's desktop. A portal that does not run yet
/// is started by the first question; whether it has a dialog is known then.
class PortalFileChooser : public QObject, public FileChooser {
    Q_OBJECT
public:
    PortalFileChooser();

    bool isAvailable() const override { return m_isAvailable; }
    Handle open(const FileQuestion& question, Done done) override;
    Handle save(const FileQuestion& question, Done done) override;

private:
    void look();
    void lookWhetherItStarts();
    void setAvailable(bool isAvailable);
    Handle ask(const QString& method, const FileQuestion& question, Done done);

    QDBusServiceWatcher m_portal;
    bool m_isAvailable = false;
};

} // namespace fendrel
