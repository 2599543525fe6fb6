#pragma once

#include "Base/Handle.h"
#include "Ports/FileChooser.h"

#include <QObject>
#include <QQuickItem>
#include <QtQmlIntegration>

namespace fendrel {

class AppController;
class FileAsking;
struct Archive;

/// Taking the user's data out into a file, and in again.
class DataController : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("made by the application")
    Q_PROPERTY(QString state READ state NOTIFY changed) ///< how the last export or import went; empty before one
    Q_PROPERTY(bool hasFailed READ hasFailed NOTIFY changed)
    Q_PROPERTY(bool canReveal READ canReveal NOTIFY changed) ///< there is a file of the last export
    Q_PROPERTY(bool canUndo READ canUndo NOTIFY changed)

public:
    DataController(AppController& controller, FileAsking& files);

    const QString& state() const { return m_state; }
    bool hasFailed() const { return m_hasFailed; }
    bool canReveal() const { return !m_exported.isEmpty(); }
    bool canUndo() const;

    /// To a file that the user is asked for; where that cannot be, to a new one among the user's documents.
    Q_INVOKABLE void exportFor(QQuickItem* button);
    Q_INVOKABLE void reveal(); ///< shows that file in the file manager
    /// Asks for the file, or has the view do so.
    Q_INVOKABLE void importFor(QQuickItem* button);
    /// Asks before anything changes. The file is an address, or a path as people type it.
    Q_INVOKABLE void importFrom(const QString& typed);
    Q_INVOKABLE void undoImport();

Q_SIGNALS:
    void changed();
    void pathWanted(); ///< nobody but the view can ask for the file to import

private:
    void exportTo(const QString& path);
    void importPath(const QString& path);
    void askToUse(const Archive& archive);
    void tell(const QString& state, bool hasFailed = false);

    AppController& m_controller;
    FileAsking& m_files;
    QString m_state;
    bool m_hasFailed = false;
    QString m_exported; ///< the path of the file
    Handle m_underWay;
};

} // namespace fendrel
