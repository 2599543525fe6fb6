#include "UI/Messages/CardsPanel.h"

#include "App/AppController.h"
#include "UI/Dock/DockController.h"
#include "UI/Messages/MessagesController.h"
#include "UI/ScreenSpace.h"

#include <QPainterPath>

namespace fendrel {

using namespace Qt::StringLiterals;

namespace {

constexpr int windowWidth = 448; ///< of the window: a card and the room for its shadow
constexpr int underTheBar = 12;  ///< how far the window reaches over the bar, so that no shadow is cut off
constexpr double cornerRadius = 18;

} // namespace

CardsPanel::CardsPanel(QQmlEngine& engine, AppController& controller, DockController& dock,
                       MessagesController& messages)
    : QQuickView(&engine, nullptr),
      m_controller(controller),
      m_dock(dock),
      m_messages(messages),
      m_keyboard(*this, controller.titles()) {
    // An alert is to be seen over a full-screen window too, and no window manager puts a panel there.
    setFlags(Qt::FramelessWindowHint | Qt::WindowDoesNotAcceptFocus | Qt::X11BypassWindowManagerHint);
    setColor(Qt::transparent);
    setTitle(tr("Fendrel messages"));
    setResizeMode(SizeRootObjectToView);
    setInitialProperties({{u"panel"_s, QVariant::fromValue(this)},
                          {u"dock"_s, QVariant::fromValue(&dock)},
                          {u"messages"_s, QVariant::fromValue(&messages)}});
    controller.platform().panels->prepare(winId(), Panels::Kind::card);
    setSource(QUrl(u"qrc:/qml/Fendrel/Messages/CardsView.qml"_s));
    connect(&m_keyboard, &BorrowedKeyboard::changed, this, &CardsPanel::keyboardChanged);
    connect(&messages, &MessagesController::changed, this, &CardsPanel::update);
    connect(&messages, &MessagesController::keyboardWanted, this, &CardsPanel::takeKeyboardToList);
    connect(&controller.gate(), &Gate::changed, this, &CardsPanel::update);
    connect(this, &CardsPanel::transparencyChanged, this, &CardsPanel::updateRegions);
    update(); // what made it necessary may be there already
}

void CardsPanel::place(const Display& display, const QRect& bar) {
    const QRect screen = ScreenSpace::toLogical(display.frame);
    QRect window = screen;
    switch (m_dock.edge()) {
    case Qt::LeftEdge:
        window.setLeft(bar.right() + 1 - underTheBar);
        window.setWidth(windowWidth);
        break;
    case Qt::RightEdge:
        window.setRight(bar.left() - 1 + underTheBar);
        window.setLeft(window.right() + 1 - windowWidth);
        break;
    default:
        window.setBottom(bar.top() - 1 + underTheBar);
        window.setLeft(screen.center().x() - windowWidth / 2);
        window.setWidth(windowWidth);
        break;
    }
    setGeometry(window);
}

bool CardsPanel::isTransparent() const {
    return m_controller.platform().panels->hasTransparency();
}

bool CardsPanel::hasCards() const {
    return (m_messages.hasAlert() || m_messages.hasList()) && !m_controller.gate().blocked();
}

void CardsPanel::update() {
    if (!hasCards())
        m_keyboard.release();
    if (m_controller.gate().blocked()) {
        hide();
    } else if (hasCards() && !isVisible()) {
        m_input = QRegion();
        show();
        updateRegions();
    }
}

void CardsPanel::closed() {
    if (!hasCards())
        hide();
}

void CardsPanel::setAlertArea(const QRectF& area) {
    m_alertArea = area;
    updateRegions();
    Q_EMIT areasChanged();
}

void CardsPanel::setListArea(const QRectF& area) {
    m_listArea = area;
    updateRegions();
    Q_EMIT areasChanged();
}

void CardsPanel::updateRegions() {
    if (!isVisible())
        return;
    QRegion input;
    QRegion outline;
    for (const QRectF& area : {m_alertArea, m_listArea}) {
        const double ratio = devicePixelRatio();
        input += QRectF(area.topLeft() * ratio, area.size() * ratio).toAlignedRect();
        QPainterPath card;
        card.addRoundedRect(area, cornerRadius, cornerRadius);
        outline += QRegion(card.toFillPolygon().toPolygon());
    }
    if (input != m_input) {
        m_input = input;
        m_controller.platform().panels->setInputRegion(winId(), input);
    }
    setMask(isTransparent() ? QRegion() : outline);
}

void CardsPanel::takeKeyboard() {
    if (hasCards() && m_keyboard.take())
        Q_EMIT keyboardTaken(!m_messages.hasAlert());
}

void CardsPanel::takeKeyboardToList() {
    if (m_messages.hasList() && hasCards() && m_keyboard.take())
        Q_EMIT keyboardTaken(true);
}

} // namespace fendrel
