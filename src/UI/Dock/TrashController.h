#pragma once

#include <QList>
#include <QObject>
#include <QUrl>
#include <QtQmlIntegration>

namespace fendrel {

class AppController;

/// The trash in the dock. It is there while Fendrel takes the place of the system's dock.
class TrashController : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("made by the application")
    Q_PROPERTY(bool isShown READ isShown NOTIFY changed)
    Q_PROPERTY(bool isEmpty READ isEmpty NOTIFY changed)

public:
    explicit TrashController(AppController& controller);
    ~TrashController() override;

    bool isShown() const;
    bool isEmpty() const;
    Q_INVOKABLE void open();
    Q_INVOKABLE void askToEmpty();
    Q_INVOKABLE void add(const QList<QUrl>& files); ///< what can't be moved there is said in an alert

Q_SIGNALS:
    void changed();

private:
    AppController& m_controller;
};

} // namespace fendrel
