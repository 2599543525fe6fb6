#pragma once

#include "UI/Messages/MessagesModel.h"

#include <QColor>
#include <QObject>
#include <QString>
#include <QtQmlIntegration>

#include <optional>

namespace fendrel {

class AppController;
class AppIcons;

/// What the cards of held messages show: the alert; and a list, which is the digest, or what is held for one mode while
/// the user looks at that. What a card showed stays while it goes.
class MessagesController : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("made by the application")
    Q_PROPERTY(bool hasAlert READ hasAlert NOTIFY changed)
    Q_PROPERTY(QString alertIcon READ alertIcon NOTIFY changed)
    Q_PROPERTY(QString alertApp READ alertApp NOTIFY changed)
    Q_PROPERTY(QString alertTitle READ alertTitle NOTIFY changed)
    Q_PROPERTY(QString alertText READ alertText NOTIFY changed)
    Q_PROPERTY(QString alertTime READ alertTime NOTIFY changed)
    Q_PROPERTY(QString alertWhy READ alertWhy NOTIFY changed)
    Q_PROPERTY(QString alertMode READ alertMode NOTIFY changed)
    Q_PROPERTY(QString alertSymbol READ alertSymbol NOTIFY changed)
    Q_PROPERTY(QColor alertTint READ alertTint NOTIFY changed)
    Q_PROPERTY(QString alertWait READ alertWait NOTIFY changed)
    Q_PROPERTY(bool hasList READ hasList NOTIFY changed)
    Q_PROPERTY(bool isDigest READ isDigest NOTIFY changed)
    Q_PROPERTY(QString listTitle READ listTitle NOTIFY changed)
    Q_PROPERTY(QString listDetail READ listDetail NOTIFY changed)
    Q_PROPERTY(QString listSymbol READ listSymbol NOTIFY changed)
    Q_PROPERTY(QColor listTint READ listTint NOTIFY changed)
    Q_PROPERTY(fendrel::MessagesModel* list READ list CONSTANT)

public:
    MessagesController(AppController& controller, AppIcons& icons);

    bool hasAlert() const;
    const QString& alertIcon() const { return m_alert.icon; }
    const QString& alertApp() const { return m_alert.appName; }
    const QString& alertTitle() const { return m_alert.title; }
    const QString& alertText() const { return m_alert.text; }
    const QString& alertTime() const { return m_alert.time; }
    const QString& alertWhy() const { return m_alert.why; }
    const QString& alertMode() const { return m_alertMode.name; }
    const QString& alertSymbol() const { return m_alertMode.symbol; }
    QColor alertTint() const { return color(m_alertMode.tint); }
    const QString& alertWait() const { return m_alertWait; }
    bool hasList() const { return !m_messages.isEmpty(); }
    bool isDigest() const { return m_isDigest; }
    QString listTitle() const;
    QString listDetail() const; ///< how many
    const QString& listSymbol() const { return m_listMode.symbol; }
    QColor listTint() const { return color(m_listMode.tint); }
    MessagesModel* list() { return &m_list; }

    /// What is held for a mode takes the place of the digest until it is closed. A user who came by the keyboard goes
    /// on with it.
    void showHeld(const QString& modeID, bool isByKeyboard);
    Q_INVOKABLE void go(); ///< to the alert's mode
    Q_INVOKABLE void dismissAlert();
    Q_INVOKABLE void dismissList();
    Q_INVOKABLE void open(int row);              ///< of the list
    Q_INVOKABLE void setHovered(bool isHovered); ///< somebody looks at the list

Q_SIGNALS:
    void changed();
    void keyboardWanted(); ///< for the list

private:
    void update();
    void updateWait();
    void takeAlert();
    QString waitText(const Mode& mode) const;
    std::optional<MessageDigest> heldList() const;
    void takeList();
    MessagesModel::Row row(const HeldMessage& message, const std::optional<QString>& why) const;

    AppController& m_controller;
    AppIcons& m_icons;
    MessagesModel::Row m_alert;
    Mode m_alertMode;
    QString m_alertWait;
    QString m_heldFor; ///< the mode whose messages the user looks at
    Mode m_listMode;
    bool m_isDigest = false;
    QList<HeldMessage> m_messages; ///< of the list
    MessagesModel m_list;          ///< keeps its rows when the list goes
};

} // namespace fendrel
