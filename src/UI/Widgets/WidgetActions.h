#pragma once

#include "Base/Handle.h"

#include <QObject>
#include <QStringList>
#include <QUrl>
#include <QtQmlIntegration>

#include <map>

namespace fendrel {

class AppController;
class WidgetCardsModel;
struct CardContent;

/// What the dock does with the current mode's widgets on the user's behalf.
class WidgetActions : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("made by the application")
    Q_PROPERTY(QStringList ticked READ ticked NOTIFY tickedChanged) ///< reminders that are completed in a moment

public:
    WidgetActions(AppController& controller, const WidgetCardsModel& cards)
        : m_controller(controller), m_cards(cards) {}

    QStringList ticked() const;

    /// Opens what the card shows, or where to set up what it lacks; where there is neither, it asks for what is new.
    Q_INVOKABLE void press(const QString& widgetID);
    static QString pressText(const CardContent& content); ///< what a press does, for who can't see the card
    /// In the browser. Addresses come from services: anything but https is left alone.
    Q_INVOKABLE void open(const QUrl& address);
    Q_INVOKABLE static bool isOpenable(const QUrl& address);
    Q_INVOKABLE void refresh(const QString& widgetID);
    /// Completes a reminder a moment later, so that a slip can be taken back with `on` false.
    Q_INVOKABLE void tick(const QString& reminderID, bool on);
    Q_INVOKABLE void complete(const QString& reminderID); ///< at once
    Q_INVOKABLE void addReminder(const QString& title);   ///< due today
    Q_INVOKABLE void resize(const QString& widgetID, const QString& size);
    Q_INVOKABLE void add(const QString& widgetID);
    Q_INVOKABLE void remove(const QString& widgetID);
    /// The cards in their new order.
    Q_INVOKABLE void arrange(const QStringList& widgetIDs);
    /// One step along the cards; at an end it stays.
    Q_INVOKABLE void move(const QString& widgetID, int step);

Q_SIGNALS:
    void tickedChanged();

private:
    AppController& m_controller;
    const WidgetCardsModel& m_cards;
    std::map<QString, Handle> m_ticked; ///< reminders by their identifier, until they are completed
};

} // namespace fendrel
