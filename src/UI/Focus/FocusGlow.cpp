#include "UI/Focus/FocusGlow.h"

#include "App/AppController.h"
#include "UI/Focus/GlowStrip.h"
#include "UI/ScreenSpace.h"

#include <algorithm>
#include <array>
#include <chrono>
#include <cmath>
#include <numbers>

namespace fendrel {

using namespace std::chrono_literals;

namespace {

constexpr Clock::Duration swelling = 1600ms;
constexpr Clock::Duration frame = 33ms;
constexpr double rest = 0.6;

} // namespace

FocusGlow::FocusGlow(AppController& controller) : m_controller(controller) {
    connect(&controller.focus(), &FocusSession::changed, this, &FocusGlow::update);
    connect(&controller.preferences(), &Preferences::changed, this, &FocusGlow::update);
    connect(&controller.engine(), &ModeEngine::changed, this, [this] {
        if (m_controller.engine().current().id != m_modeID && !m_strips.empty())
            swell();
        update();
    });
}

FocusGlow::~FocusGlow() = default;

double FocusGlow::level(Clock::Duration since) {
    if (since >= swelling)
        return rest;
    const double share = std::max(0.0, std::chrono::duration<double>(since) / swelling);
    return rest * share + std::sin(share * std::numbers::pi) * (1 - rest * share) * 0.8;
}

void FocusGlow::update() {
    if (!m_controller.focus().isOn() || !m_controller.preferences().focusGlow()) {
        m_strips.clear();
        m_frames.reset();
        return;
    }
    if (m_strips.empty())
        swell();
    show();
}

void FocusGlow::swell() {
    m_modeID = m_controller.engine().current().id;
    m_start = m_controller.platform().clock->continuousNow();
    if (m_controller.platform().look->reducesMotion()) {
        m_start -= swelling;
        return;
    }
    m_frames = m_controller.platform().clock->every(frame, frame / 8, [this] {
        if (m_controller.platform().clock->continuousNow() - m_start >= swelling)
            m_frames.reset();
        paint();
    });
}

/// The strips of every display: the upper and the lower one from side to side, the others between them.
void FocusGlow::show() {
    Panels& panels = *m_controller.platform().panels;
    const auto displays = m_controller.platform().displays->all();
    std::erase_if(m_strips, [&](const auto& entry) {
        return std::ranges::find(displays, entry.first, &Display::id) == displays.end();
    });
    const int thickness = panels.hasTransparency() ? depth : lineDepth;
    for (const Display& display : displays) {
        const QRect all = ScreenSpace::toLogical(display.frame);
        const QRect between = all.adjusted(0, thickness, 0, -thickness);
        const std::array<QRect, 4> places{
            QRect(all.topLeft(), QSize(all.width(), thickness)),
            QRect(all.left(), between.bottom() + 1, all.width(), thickness),
            QRect(between.topLeft(), QSize(thickness, between.height())),
            QRect(all.right() + 1 - thickness, between.top(), thickness, between.height())};
        auto& strips = m_strips[display.id];
        for (std::size_t index = 0; index < places.size(); ++index) {
            if (strips.size() == index) {
                strips.push_back(std::make_unique<GlowStrip>());
                panels.prepare(strips[index]->winId(), Panels::Kind::glow);
            }
            strips[index]->setGeometry(places[index]);
            if (!strips[index]->isVisible())
                strips[index]->show();
            panels.setInputRegion(strips[index]->winId(), {});
        }
    }
    paint();
}

void FocusGlow::paint() {
    const double now = level(m_controller.platform().clock->continuousNow() - m_start);
    const auto displays = m_controller.platform().displays->all();
    for (const auto& [id, strips] : m_strips) {
        const auto display = std::ranges::find(displays, id, &Display::id);
        if (display == displays.end())
            continue;
        const QRect all = ScreenSpace::toLogical(display->frame);
        for (const auto& strip : strips)
            strip->setLook({.edges = all.translated(-strip->geometry().topLeft()),
                            .tint = color(m_controller.engine().current().tint),
                            .level = now,
                            .isBlended = m_controller.platform().panels->hasTransparency()});
    }
}

} // namespace fendrel
