#include "App/TidyUp.h"

#include "App/Workspace.h"
#include "Modes/ModeCatalog.h"

namespace fendrel {

TidyUp::TidyUp(Workspace& workspace, const ModeCatalog& catalog) : m_workspace(workspace), m_catalog(catalog) {}

void TidyUp::tidy(const Mode& mode) {
    for (const QString& bundleID : m_workspace.runningApps()) {
        if (mode.apps.contains(bundleID)) {
            if (m_hidden.remove(bundleID))
                m_workspace.unhide(bundleID);
        } else if (!m_catalog.sharedApps.contains(bundleID)) {
            m_workspace.hide(bundleID);
            m_hidden.insert(bundleID);
        }
    }
}

} // namespace fendrel
