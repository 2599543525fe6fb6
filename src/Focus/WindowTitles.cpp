#include "Focus/WindowTitles.h"

#include <QCoreApplication>

namespace fendrel {

WindowTitles::WindowTitles(Accessibility& accessibility)
    : m_accessibility(accessibility), m_isTrusted(accessibility.isTrusted()) {
    m_accessibility.onTrustChanged = [this] { checkTrust(); };
}

void WindowTitles::requestPermission() {
    m_accessibility.requestPermission();
    checkTrust();
}

void WindowTitles::track(const std::optional<RunningApp>& app) {
    if (app && (app->pid == QCoreApplication::applicationPid() || app->bundleID.isEmpty()))
        return;
    m_app = app;
    observe();
}

void WindowTitles::observe() {
    m_observer.reset();
    m_window.reset();
    if (!m_app) {
        publish({});
        return;
    }
    if (!m_isTrusted) {
        readTitle();
        return;
    }
    m_observer = m_accessibility.observe(m_app->pid, {.onWindowChanged = [this] { windowDidChange(); },
                                                      .onTitleChanged =
                                                          [this](WindowID window) {
                                                              if (window == m_window)
                                                                  readTitle();
                                                          }});
    windowDidChange();
}

void WindowTitles::checkTrust() {
    if (m_isTrusted == m_accessibility.isTrusted())
        return;
    m_isTrusted = m_accessibility.isTrusted();
    observe();
}

void WindowTitles::windowDidChange() {
    m_window = m_accessibility.focusedWindow(m_app->pid);
    if (!m_window)
        m_window = m_accessibility.mainWindow(m_app->pid);
    readTitle();
}

void WindowTitles::readTitle() {
    std::optional<QString> title;
    if (m_window)
        title = m_accessibility.title(*m_window);
    if (title)
        title = title->trimmed();
    publish(Front{.pid = m_app->pid,
                  .bundleID = m_app->bundleID,
                  .appName = m_app->name.isEmpty() ? m_app->bundleID : m_app->name,
                  .title = title});
}

void WindowTitles::publish(const std::optional<Front>& front) {
    if (front == m_front)
        return;
    m_front = front;
    Q_EMIT changed();
    onChange(m_front);
}

} // namespace fendrel
