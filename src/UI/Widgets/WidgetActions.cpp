#include "UI/Widgets/WidgetActions.h"

#include "App/AppController.h"
#include "UI/Widgets/WidgetCardsModel.h"

namespace fendrel {

using namespace Qt::StringLiterals;

void WidgetActions::press(const QString& widgetID) {
    const CardContent* content = m_cards.content(widgetID);
    if (!content)
        return;
    if (content->state == CardContent::State::disconnected)
        m_controller.showSettings(u"accounts"_s);
    else if (content->state == CardContent::State::unset)
        m_controller.showSettings(u"widgets"_s);
    else if (isOpenable(content->address))
        open(content->address);
    else
        refresh(widgetID);
}

QString WidgetActions::pressText(const CardContent& content) {
    switch (content.state) {
    case CardContent::State::disconnected:
        return tr("Opens the accounts in the settings");
    case CardContent::State::unset:
        return tr("Opens the widgets in the settings");
    default:
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
    Feed* feed = widget ? m_controller.widgets().feed(*widget) : nullptr;
    if (feed && !feed->isLoading())
        feed->refresh(true);
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
