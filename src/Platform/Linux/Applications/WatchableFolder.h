#pragma once

#include <QFileInfo>
#include <QString>

namespace fendrel {

/// The folder, or while it is not there yet the one through which its making is noticed.
inline QString watchable(QString folder) {
    while (!QFileInfo::exists(folder) && folder.size() > 1)
        folder = QFileInfo(folder).path();
    return folder;
}

} // namespace fendrel
