#pragma once

#include <QColor>
#include <QObject>
#include <QString>
#include <QtQmlIntegration>

namespace fendrel {

class AppController;

/// The gate as its panel shows it, with the four answers.
class GateController : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("made by the application")
    Q_PROPERTY(bool isOpen READ isOpen NOTIFY changed)
    Q_PROPERTY(bool isSite READ isSite NOTIFY changed)
    Q_PROPERTY(QString name READ name NOTIFY changed)
    Q_PROPERTY(QString note READ note NOTIFY changed)
    Q_PROPERTY(QString ownerName READ ownerName NOTIFY changed)
    Q_PROPERTY(QString ownerSymbol READ ownerSymbol NOTIFY changed)
    Q_PROPERTY(QColor ownerTint READ ownerTint NOTIFY changed)
    Q_PROPERTY(int wait READ wait NOTIFY changed)
    Q_PROPERTY(bool isSwitching READ isSwitching NOTIFY changed)
    Q_PROPERTY(QString usedUp READ usedUp NOTIFY changed)
    Q_PROPERTY(QString reason READ reason WRITE setReason NOTIFY changed)

public:
    explicit GateController(AppController& controller);

    bool isOpen() const;
    bool isSite() const;
    QString name() const;
    QString note() const; ///< empty when it says no more than the name
    QString ownerName() const;
    QString ownerSymbol() const;
    QColor ownerTint() const;
    int wait() const;         ///< seconds that a switch asked for now would take
    bool isSwitching() const; ///< the switch to the owner is under way
    QString usedUp() const;   ///< says that the day's allowance is spent; empty while it is not
    QString reason() const;
    void setReason(const QString& reason);

    Q_INVOKABLE void stay();
    Q_INVOKABLE void switchToOwner();
    Q_INVOKABLE void allowOnce();
    Q_INVOKABLE void addToMode();

Q_SIGNALS:
    void changed();

private:
    AppController& m_controller;
};

} // namespace fendrel
