#pragma once

#include "Ports/FileChooser.h"

#include <QObject>
#include <QQuickItem>
#include <QtQmlIntegration>

namespace fendrel {

/// Asks for files in the desktop's own dialog, one question at a time. A dialog closes with the window that asked.
class FileAsking : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("made by the application")
    Q_PROPERTY(bool isAvailable READ isAvailable NOTIFY changed)
    Q_PROPERTY(bool isOpen READ isOpen NOTIFY changed) ///< further questions are passed over

public:
    explicit FileAsking(FileChooser& chooser);
    ~FileAsking() override;

    bool isAvailable() const { return m_chooser.isAvailable(); }
    bool isOpen() const { return m_isOpen; }

    /// The question's window is the one of `asker`. Without a dialog the answer comes at once: there is none.
    void open(const QQuickItem& asker, const FileQuestion& question, FileChooser::Done done);
    void save(const QQuickItem& asker, const FileQuestion& question, FileChooser::Done done);

Q_SIGNALS:
    void changed();

private:
    using Ask = Handle (FileChooser::*)(const FileQuestion&, FileChooser::Done);
    void ask(Ask how, const QQuickItem& asker, FileQuestion question, FileChooser::Done done);
    void setOpen(bool isOpen);

    FileChooser& m_chooser;
    bool m_isOpen = false;
    Handle m_question;
    QMetaObject::Connection m_closing; ///< of the window that asked
};

} // namespace fendrel
