#pragma once

#include <QObject>
#include <QQuickItem>
#include <QString>
#include <QtQmlIntegration>

namespace fendrel {

class AppController;
class FileAsking;

/// Whose events and reminders the widgets show: the desktop's, or those of a folder that the user picks.
class CalendarChooser : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("made by the application")
    Q_PROPERTY(QString folder READ folder NOTIFY changed) ///< as it is to be in its field; empty: none was picked
    Q_PROPERTY(QString state READ state NOTIFY changed)   ///< where they come from now
    Q_PROPERTY(QString problem READ problem NOTIFY changed)
    Q_PROPERTY(bool canAsk READ canAsk NOTIFY changed) ///< in the desktop's own dialog

public:
    CalendarChooser(AppController& controller, FileAsking& files);

    QString folder() const;
    QString state() const;
    QString problem() const { return m_problem; }
    bool canAsk() const;

    Q_INVOKABLE void setFolder(const QString& typed); ///< empty: what is found without being told
    Q_INVOKABLE void ask(QQuickItem* button);

Q_SIGNALS:
    void changed();

private:
    QString chosen() const;
    void use(const QString& path);

    AppController& m_controller;
    FileAsking& m_files;
    QString m_typed; ///< while it is no folder
    QString m_problem;
};

} // namespace fendrel
