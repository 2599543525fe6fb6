#include "UI/Focus/GatePanel.h"

#include "App/AppController.h"
#include "UI/Dock/DockController.h"
#include "UI/Focus/FocusController.h"
#include "UI/Focus/GateController.h"
#include "UI/Images/AppIcons.h"
#include "UI/ScreenSpace.h"

#include <QMoveEvent>

namespace fendrel {

using namespace Qt::StringLiterals;

GatePanel::GatePanel(QQmlEngine& engine, AppController& controller, AppIcons& icons, DockController& dock,
                     FocusController& focus, GateController& gate)
    : QQuickView(&engine, nullptr), m_controller(controller), m_icons(icons) {
    setFlags(Qt::FramelessWindowHint | Qt::WindowStaysOnTopHint | Qt::Tool);
    setColor(Qt::transparent);
    setTitle(tr("Stay focused, or switch?"));
    setResizeMode(SizeRootObjectToView);
    setInitialProperties({{u"panel"_s, QVariant::fromValue(this)},
                          {u"dock"_s, QVariant::fromValue(&dock)},
                          {u"focusState"_s, QVariant::fromValue(&focus)},
                          {u"gate"_s, QVariant::fromValue(&gate)}});
    controller.platform().panels->prepare(winId(), Panels::Kind::gate);
    setSource(QUrl(u"qrc:/qml/Fendrel/Focus/GateView.qml"_s));
    connect(&controller.gate(), &Gate::changed, this, &GatePanel::gateChanged);
    connect(&controller.gate(), &Gate::attentionAsked, this, &GatePanel::comeForward);
    connect(&controller.preferences(), &Preferences::changed, this, &GatePanel::lookChanged);
}

bool GatePanel::isOpen() const {
    return m_controller.gate().blocked().has_value();
}

bool GatePanel::isTransparent() const {
    return m_controller.platform().panels->hasTransparency();
}

bool GatePanel::isDark() const {
    return m_controller.preferences().systemIsDark();
}

QString GatePanel::icon() const {
    const Gate::App* app = m_controller.gate().blockedApp();
    return app ? m_icons.source(app->bundleID) : QString();
}

/// Where nobody knows on which display the stopped window is, it is the main one.
Display GatePanel::display() const {
    const QList<Display> displays = m_controller.platform().displays->all();
    if (displays.isEmpty())
        return {.id = {}, .frame = {0, 0, 1280, 720}};
    const auto window = m_controller.titles().window();
    const auto frame = window ? m_controller.platform().accessibility->frame(*window) : std::nullopt;
    const auto shown = frame ? displayAt(displays, frame->center()) : std::nullopt;
    return shown ? *shown : displays.first();
}

void GatePanel::gateChanged() {
    Q_EMIT openChanged();
}

void GatePanel::comeForward() {
    m_display = display();
    // A frameless window of exactly a display's size counts as full-screen, and goes above every dock: one line more.
    m_cover = ScreenSpace::toLogical(m_display.frame).adjusted(0, 0, 0, 1);
    m_movesLeft = 3;
    setGeometry(m_cover);
    leaveOutDock();
    show();
    m_controller.platform().panels->activate(winId());
    Q_EMIT attentionAsked();
}

/// The dock lies above the gate where the window manager allows it; where not, it is at least reached through it, and
/// seen when nothing blends windows.
void GatePanel::leaveOutDock() {
    if (!isOpen())
        return;
    const QRect dock = dockArea(m_display.id);
    const QRegion rest = (QRegion(m_display.frame) - dock).translated(-m_display.frame.topLeft());
    m_controller.platform().panels->setInputRegion(winId(), rest);
    const QRect cover = ScreenSpace::toLogical(m_display.frame);
    const QRect bar = ScreenSpace::toLogical(dock);
    setMask(isTransparent() ? QRegion() : (QRegion(cover) - bar).translated(-cover.topLeft()));

    QRect room = cover;
    if (bar.width() > bar.height())
        room.setBottom(bar.top() - 1);
    else if (!bar.isEmpty() && bar.center().x() < cover.center().x())
        room.setLeft(bar.right() + 1);
    else if (!bar.isEmpty())
        room.setRight(bar.left() - 1);
    m_cardArea = room.translated(-cover.topLeft());
    Q_EMIT cardAreaChanged();
}

/// Window managers place a new window beside the panels, this one too. It insists, but not for ever.
void GatePanel::moveEvent(QMoveEvent* event) {
    QQuickView::moveEvent(event);
    if (isVisible() && event->pos() != m_cover.topLeft() && m_movesLeft-- > 0)
        setGeometry(m_cover);
}

void GatePanel::closed() {
    if (!isOpen())
        hide();
}

} // namespace fendrel
