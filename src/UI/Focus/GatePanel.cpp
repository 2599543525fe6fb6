#include "UI/Focus/GatePanel.h"

#include "App/AppController.h"
#include "UI/Dock/DockController.h"
#include "UI/Focus/FocusController.h"
#include "UI/Focus/GateController.h"
#include "UI/Images/AppIcons.h"
#include "UI/ScreenSpace.h"

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
    const auto& blocked = m_controller.gate().blocked();
    return blocked ? m_icons.source(blocked->bundleID) : QString();
}

/// In device pixels. Where nobody knows which display it is, it is the main one.
QRect GatePanel::cover() const {
    const QList<Display> displays = m_controller.platform().displays->all();
    if (displays.isEmpty())
        return {0, 0, 1280, 720};
    const auto window = m_controller.titles().window();
    const auto frame = window ? m_controller.platform().accessibility->frame(*window) : std::nullopt;
    const auto shown = frame ? displayAt(displays, frame->center()) : std::nullopt;
    const Display& display = shown ? *shown : displays.first();
    return (QRegion(display.workArea) - dockArea(display.id)).boundingRect();
}

void GatePanel::gateChanged() {
    Q_EMIT openChanged();
}

void GatePanel::comeForward() {
    setGeometry(ScreenSpace::toLogical(cover()));
    show();
    m_controller.platform().panels->activate(winId());
    Q_EMIT attentionAsked();
}

void GatePanel::closed() {
    if (!isOpen())
        hide();
}

} // namespace fendrel
