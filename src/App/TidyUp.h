#pragma once

#include <QSet>
#include <QString>

namespace fendrel {

struct Mode;
struct ModeCatalog;
class Workspace;

/// Hides what does not belong to a mode when it begins, and brings back what an earlier tidying hid and belongs to it.
class TidyUp {
public:
    TidyUp(Workspace& workspace, const ModeCatalog& catalog);
    void tidy(const Mode& mode);

private:
    Workspace& m_workspace;
    const ModeCatalog& m_catalog;
    QSet<QString> m_hidden;
};

} // namespace fendrel
