#include "UI/Dock/AppActions.h"

#include "App/AppController.h"

#include <algorithm>

namespace fendrel {

using namespace Qt::StringLiterals;

void AppActions::click(const QString& bundleID) {
    const auto& front = m_controller.titles().front();
    const bool isFront = front && front->bundleID == bundleID && !m_controller.gate().blocked();
    if (!isFront)
        open(bundleID);
    else if (m_controller.preferences().clickToHide())
        hide(bundleID);
    else
        cycle(bundleID, 1);
}

void AppActions::open(const QString& bundleID) {
    m_controller.workspace().open(bundleID);
}

void AppActions::cycle(const QString& bundleID, int step) {
    QList<quint64> windows;
    for (const WindowInfo& window : m_controller.workspace().windows(bundleID))
        windows.append(window.id.value);
    // Always in the same order, whichever of them is in front.
    std::ranges::sort(windows);
    const auto& front = m_controller.titles().front();
    const auto active = m_controller.titles().window();
    const bool isFront = front && front->bundleID == bundleID && active;
    const qsizetype at = isFront ? windows.indexOf(active->value) : -1;
    if (at < 0)
        return open(bundleID);
    const qsizetype next = (at + step % windows.size() + windows.size()) % windows.size();
    if (next != at)
        m_controller.platform().accessibility->raise(WindowID{windows[next]});
}

void AppActions::openWindow(const QString& bundleID) {
    m_controller.workspace().openWindow(bundleID);
}

void AppActions::openFiles(const QString& bundleID, const QList<QUrl>& files) {
    m_controller.workspace().openFiles(bundleID, files);
}

void AppActions::hide(const QString& bundleID) {
    m_controller.workspace().hide(bundleID);
}

void AppActions::hideOthers(const QString& bundleID) {
    m_controller.workspace().hideOthers(bundleID);
}

void AppActions::showAllWindows(const QString& bundleID) {
    m_controller.workspace().showAllWindows(bundleID);
}

void AppActions::quit(const QString& bundleID) {
    m_controller.workspace().quit(bundleID);
}

void AppActions::forceQuit(const QString& bundleID) {
    m_controller.workspace().forceQuit(bundleID);
}

void AppActions::reveal(const QString& bundleID) {
    m_controller.workspace().revealInFinder(bundleID);
}

QVariantList AppActions::actions(const QString& bundleID) const {
    QVariantList entries;
    for (const AppAction& action : m_controller.workspace().actions(bundleID))
        entries.append(QVariantMap{{u"id"_s, action.id}, {u"name"_s, action.name}});
    return entries;
}

void AppActions::runAction(const QString& bundleID, const QString& actionID) {
    m_controller.workspace().runAction(bundleID, actionID);
}

QVariantList AppActions::windows(const QString& bundleID) const {
    const auto active = m_controller.titles().window();
    QVariantList entries;
    for (const WindowInfo& window : m_controller.workspace().windows(bundleID))
        entries.append(QVariantMap{{u"id"_s, window.id.value},
                                   {u"title"_s, window.title},
                                   {u"isMinimized"_s, window.isMinimized},
                                   {u"isFront"_s, active == window.id}});
    return entries;
}

void AppActions::raiseWindow(quint64 window) {
    m_controller.platform().accessibility->raise(WindowID{window});
}

void AppActions::minimizeWindow(quint64 window) {
    m_controller.platform().accessibility->minimize(WindowID{window});
}

void AppActions::closeWindow(quint64 window) {
    m_controller.platform().accessibility->close(WindowID{window});
}

QVariantList AppActions::modes(const QString& bundleID) const {
    const ModeEngine& engine = m_controller.engine();
    QVariantList entries;
    for (const Mode& mode : engine.modes())
        entries.append(QVariantMap{{u"id"_s, mode.id},
                                   {u"name"_s, mode.name},
                                   {u"symbol"_s, mode.symbol},
                                   {u"tint"_s, color(mode.tint)},
                                   {u"isCurrent"_s, mode.id == engine.current().id},
                                   {u"hasApp"_s, mode.apps.contains(bundleID)}});
    return entries;
}

void AppActions::add(const QString& bundleID, const QString& modeID) {
    m_controller.edits().add(bundleID, modeID);
}

void AppActions::move(const QString& bundleID, const QString& fromModeID, const QString& toModeID) {
    m_controller.edits().move(bundleID, fromModeID, toModeID);
}

void AppActions::remove(const QString& bundleID, const QString& modeID) {
    m_controller.edits().remove(bundleID, modeID);
}

void AppActions::place(const QString& bundleID, const QString& neighbour, bool after) {
    m_controller.engine().moveApp(bundleID, neighbour, after, m_controller.engine().current().id);
}

QString AppActions::applicationAt(const QUrl& file) const {
    return m_controller.workspace().applicationAt(file).value_or(QString());
}

} // namespace fendrel
