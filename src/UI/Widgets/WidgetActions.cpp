#include "UI/Widgets/WidgetActions.h"

#include "App/AppController.h"
#include "UI/Widgets/WidgetCardsModel.h"

namespace fendrel {

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

void WidgetActions::press(const QString& widgetID) {
    const CardContent* content = m_cards.content(widgetID);
    if (!content)
        return;
    switch (content->state) {
    case CardContent::State::disconnected:
        m_controller.showSettings(u"accounts"_s);
        break;
    case CardContent::State::unset:
        m_controller.showSettings(u"widgets"_s);
        break;
    case CardContent::State::denied:
        m_controller.showSettings(u"permissions"_s);
        break;
    case CardContent::State::unasked:
        if (content->form == CardContent::Form::tasks)
            m_controller.widgets().reminders().requestAccess();
        else
            m_controller.widgets().calendar().requestAccess();
        break;
    default:
        if (isOpenable(content->address))
            open(content->address);
        else
            refresh(widgetID);
    }
}

QString WidgetActions::pressText(const CardContent& content) {
    switch (content.state) {
    case CardContent::State::disconnected:
        return tr("Opens the accounts in the settings");
    case CardContent::State::unset:
        return tr("Opens the widgets in the settings");
    case CardContent::State::denied:
        return tr("Opens the permissions in the settings");
    case CardContent::State::unasked:
        return tr("Asks you for leave to read it");
    default:
        if (content.form == CardContent::Form::tasks && content.state != CardContent::State::failed &&
            content.state != CardContent::State::waiting)
            return tr("Adds a reminder");
        if (content.isLoading && !isOpenable(content.address))
            return tr("Is being asked for what is new");
        return isOpenable(content.address) ? tr("Opens it in the browser") : tr("Asks for what is new");
    }
}

bool WidgetActions::isOpenable(const QUrl& address) {
    return address.isValid() && address.scheme() == "https"_L1 && !address.host().isEmpty();
}

void WidgetActions::open(const QUrl& address) {
    if (isOpenable(address))
        m_controller.platform().shell->openAddress(address);
}

void WidgetActions::refresh(const QString& widgetID) {
    const auto widget = enumValue<DockWidget>(widgetID);
    WidgetFeed* feed = widget ? m_controller.widgets().feed(*widget) : nullptr;
    if (feed && !feed->isLoading())
        feed->refresh(true);
}

void WidgetActions::tick(const QString& reminderID, bool on) {
    constexpr auto secondThoughts = 1200ms;
    if (on)
        m_ticked[reminderID] =
            m_controller.platform().clock->after(secondThoughts, [this, reminderID] { complete(reminderID); });
    else
        m_ticked.erase(reminderID);
    Q_EMIT tickedChanged();
}

QStringList WidgetActions::ticked() const {
    QStringList ids;
    for (const auto& each : m_ticked)
        ids.append(each.first);
    return ids;
}

void WidgetActions::complete(const QString& reminderID) {
    const QString id = reminderID; // the handle that is dropped may own it
    m_controller.widgets().reminders().complete(id);
    m_ticked.erase(id);
    Q_EMIT tickedChanged();
}

void WidgetActions::addReminder(const QString& title) {
    m_controller.widgets().reminders().add(title.simplified());
}

void WidgetActions::resize(const QString& widgetID, const QString& size) {
    const auto widget = enumValue<DockWidget>(widgetID);
    const auto wanted = enumValue<WidgetSize>(size);
    if (widget && wanted)
        m_controller.widgetSizes().set(m_controller.engine().current().id, *widget, *wanted);
}

void WidgetActions::add(const QString& widgetID) {
    if (enumValue<DockWidget>(widgetID))
        m_controller.edits().addWidget(widgetID, m_controller.engine().current().id);
}

void WidgetActions::remove(const QString& widgetID) {
    m_controller.edits().removeWidget(widgetID, m_controller.engine().current().id);
}

void WidgetActions::arrange(const QStringList& widgetIDs) {
    m_controller.edits().arrangeWidgets(widgetIDs, m_controller.engine().current().id);
}

void WidgetActions::move(const QString& widgetID, int step) {
    QStringList order = m_cards.order();
    const qsizetype from = order.indexOf(widgetID);
    const qsizetype to = from + step;
    if (from < 0 || to < 0 || to >= order.size())
        return;
    order.move(from, to);
    arrange(order);
}

} // namespace fendrel
