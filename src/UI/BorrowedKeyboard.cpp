#include "UI/BorrowedKeyboard.h"

#include "Focus/WindowTitles.h"

#include <QCoreApplication>
#include <QFocusEvent>
#include <QWindow>

namespace fendrel {

BorrowedKeyboard::BorrowedKeyboard(QWindow& window, WindowTitles& titles) : m_window(window), m_titles(titles) {
    connect(&titles, &WindowTitles::changed, this, [this] {
        if (front() != m_frontAtStart)
            release();
    });
}

QString BorrowedKeyboard::front() const {
    const auto& front = m_titles.front();
    return front ? front->bundleID : QString();
}

bool BorrowedKeyboard::grab() {
    if (!m_window.setKeyboardGrabEnabled(true))
        return false;
    // The window is never the active one, so the toolkit has to be told that keys come here.
    QFocusEvent event(QEvent::FocusIn, Qt::ShortcutFocusReason);
    QCoreApplication::sendEvent(&m_window, &event);
    return true;
}

bool BorrowedKeyboard::take() {
    if (!grab())
        return false;
    m_frontAtStart = front();
    m_isHere = true;
    Q_EMIT changed();
    return true;
}

void BorrowedKeyboard::release() {
    if (!m_isHere)
        return;
    m_isHere = false;
    m_window.setKeyboardGrabEnabled(false);
    QFocusEvent event(QEvent::FocusOut, Qt::ShortcutFocusReason);
    QCoreApplication::sendEvent(&m_window, &event);
    Q_EMIT changed();
}

void BorrowedKeyboard::resume() {
    if (m_isHere && !grab())
        release();
}

} // namespace fendrel
