#pragma once

#include <QList>
#include <QObject>
#include <QUrl>
#include <QVariantList>
#include <QtQmlIntegration>

namespace fendrel {

class AppController;

/// What the dock does with applications and their windows on the user's behalf. Windows are named by their number.
class AppActions : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("made by the application")
public:
    explicit AppActions(AppController& controller) : m_controller(controller) {}

    /// A click: opens it or brings it to the front; in front already, it shows its next window, or hides where the user
    /// set that.
    Q_INVOKABLE void click(const QString& bundleID);
    Q_INVOKABLE void open(const QString& bundleID);
    Q_INVOKABLE void cycle(const QString& bundleID, int step); ///< through its windows
    Q_INVOKABLE void openWindow(const QString& bundleID);
    Q_INVOKABLE void openFiles(const QString& bundleID, const QList<QUrl>& files);
    Q_INVOKABLE void hide(const QString& bundleID);
    Q_INVOKABLE void hideOthers(const QString& bundleID);
    Q_INVOKABLE void showAllWindows(const QString& bundleID);
    Q_INVOKABLE void quit(const QString& bundleID);
    Q_INVOKABLE void forceQuit(const QString& bundleID);
    Q_INVOKABLE void reveal(const QString& bundleID);
    Q_INVOKABLE QVariantList actions(const QString& bundleID) const; ///< { id, name }
    Q_INVOKABLE void runAction(const QString& bundleID, const QString& actionID);

    Q_INVOKABLE QVariantList windows(const QString& bundleID) const; ///< { id, title, isMinimized, isFront }
    Q_INVOKABLE void raiseWindow(quint64 window);
    Q_INVOKABLE void minimizeWindow(quint64 window);
    Q_INVOKABLE void closeWindow(quint64 window);

    // Which modes it belongs to
    Q_INVOKABLE QVariantList modes(const QString& bundleID) const; ///< { id, name, symbol, tint, isCurrent, hasApp }
    Q_INVOKABLE void add(const QString& bundleID, const QString& modeID);
    Q_INVOKABLE void move(const QString& bundleID, const QString& fromModeID, const QString& toModeID);
    Q_INVOKABLE void remove(const QString& bundleID, const QString& modeID);
    Q_INVOKABLE void place(const QString& bundleID, const QString& neighbour, bool after); ///< in the current mode
    Q_INVOKABLE QString applicationAt(const QUrl& file) const; ///< empty: it stands for none

private:
    AppController& m_controller;
};

} // namespace fendrel
