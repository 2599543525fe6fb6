#pragma once

#include "Base/Handle.h"
#include "Base/Result.h"

#include <QList>
#include <QString>
#include <QStringList>

#include <functional>

namespace fendrel {

/// What to ask the user for. Texts are for the user.
struct FileQuestion {
    struct Filter {
        QString name{};
        QStringList globs{}; ///< "*.json"
    };
    QString title{};
    QList<Filter> filters{}; ///< the first is in force at first; none: all files
    bool isForFolder{};      ///< to open: a folder, not a file
    QString suggestedName{}; ///< of a file to save, without its folder
    QString folder{};        ///< where to begin; empty: where the desktop thinks best
    quintptr window{};       ///< native id of the window that asks, which has to wait; 0: none
};

/// The desktop's own dialog for choosing a file. Main thread; nothing blocks. Answers come later, never from inside the
/// call and never after the handle is dropped, which closes the dialog.
class FileChooser {
public:
    enum class NoFile {
        cancelled,
        unusable, ///< it is not on this computer, or its name is no text
        failed,   ///< there is no such dialog after all, or it is gone
    };
    using Choice = Result<QString, NoFile>; ///< the path
    using Done = std::function<void(const Choice&)>;

    virtual ~FileChooser() = default;

    /// Where it is not, a question fails.
    virtual bool isAvailable() const = 0;
    std::function<void()> onChanged = [] {};

    virtual Handle open(const FileQuestion& question, Done done) = 0; ///< what is there
    /// A place to write to. That a file there is replaced, the user agreed to.
    virtual Handle save(const FileQuestion& question, Done done) = 0;
};

} // namespace fendrel
