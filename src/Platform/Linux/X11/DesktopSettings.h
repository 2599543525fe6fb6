#pragma once

#include "Platform/Linux/X11/SelectionOwner.h"
#include "Platform/Linux/X11/XSettings.h"

#include <QObject>

#include <memory>
#include <optional>

namespace fendrel {

/// How the user set up the desktop's look: what its settings daemon tells over the X server, else what stands in the
/// toolkits' own files. Main thread.
class DesktopSettings : public QObject {
    Q_OBJECT
public:
    explicit DesktopSettings(std::shared_ptr<X11Connection> connection);

    QString themeName() const;
    QString iconThemeName() const;
    std::optional<bool> prefersDark() const;
    std::optional<bool> animates() const;
    /// What programs are asked to scale all text by, apart from whole windows; 1 where nobody asks.
    double drawnScale() const;

Q_SIGNALS:
    void changed();

private:
    void handle(const xcb_generic_event_t& event);
    void read();
    void readFiles();
    QVariant value(const QString& name, const QString& fileKey) const;

    std::shared_ptr<X11Connection> m_connection;
    SelectionOwner m_daemon;
    XSettings m_published;
    QHash<QString, QString> m_toolkitFile;
    QString m_desktopIconTheme; ///< of desktops that publish nothing
};

} // namespace fendrel
