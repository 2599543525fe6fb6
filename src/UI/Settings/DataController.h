#pragma once

#include "Base/Handle.h"

#include <QObject>
#include <QtQmlIntegration>

namespace fendrel {

class AppController;
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
    explicit DataController(AppController& controller);

    const QString& state() const { return m_state; }
    bool hasFailed() const { return m_hasFailed; }
    bool canReveal() const { return !m_exported.isEmpty(); }
    bool canUndo() const;

    Q_INVOKABLE void exportNow(); ///< to a new file among the user's documents
    Q_INVOKABLE void reveal();    ///< shows that file in the file manager
    /// Asks before anything changes. The file is an address, or a path as people type it.
    Q_INVOKABLE void importFrom(const QString& typed);
    Q_INVOKABLE void undoImport();

Q_SIGNALS:
    void changed();

private:
    void askToUse(const Archive& archive);
    void tell(const QString& state, bool hasFailed = false);

    AppController& m_controller;
    QString m_state;
    bool m_hasFailed = false;
    QString m_exported; ///< the path of the file
    Handle m_underWay;
};

} // namespace fendrel
