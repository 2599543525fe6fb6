#pragma once

#include "Ports/Applications.h"

#include <QQuickImageProvider>
#include <QString>

#include <memory>

namespace fendrel {

class Workspace;

/// Application icons for views, drawn at the size they ask for on the loader's thread.
class AppIcons {
public:
    explicit AppIcons(const Workspace& workspace);

    /// The address of an application's icon, another one when the icon changes. Main thread.
    QString source(const QString& bundleID);

    /// What the addresses lead to, to be installed as "app". The engine takes ownership.
    QQuickImageProvider* makeProvider() const;

private:
    class Provider;
    struct Icons;
    const Workspace& m_workspace;
    std::shared_ptr<Icons> m_icons;
};

} // namespace fendrel
