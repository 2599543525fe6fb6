#pragma once

#include "Ports/Applications.h"

namespace fendrel {

/// Does nothing by itself: what the services ask for is written down, what the system does is told by the test.
class FakeApplications final : public Applications {
public:
    // What the test tells

    /// A regular application started; returns its pid.
    qint64 launch(const QString& bundleID, const QString& name = {}) {
        const qint64 pid = m_nextPid++;
        return launch({.pid = pid, .bundleID = bundleID, .name = name, .isRegular = true, .launchOrder = pid});
    }
    qint64 launch(const RunningApp& app) {
        runningApps.append(app);
        onRunningChanged();
        return app.pid;
    }
    /// The application ended. Nothing is in front then if it was.
    void end(qint64 pid) {
        runningApps.removeIf([pid](const RunningApp& app) { return app.pid == pid; });
        onRunningChanged();
        if (front == pid)
            bringToFront({});
    }
    void bringToFront(std::optional<qint64> pid) {
        front = pid;
        onActivated(frontmost());
    }

    QList<InstalledApp> installedApps;
    QList<RunningApp> runningApps;
    std::optional<qint64> front;
    QHash<QString, QString> locations;
    QHash<QString, AppIcon> icons;
    QString fileManagerID;
    QStringList browserIDs;

    // What the services asked for

    /// In order: "open ID", "open ID behind", "activate PID", and so on.
    QStringList requests;
    QList<QUrl> openedFiles;

    // The port

    QList<InstalledApp> installed() const override { return installedApps; }
    QList<RunningApp> running() const override { return runningApps; }
    std::optional<RunningApp> frontmost() const override {
        for (const auto& app : runningApps) {
            if (app.pid == front)
                return app;
        }
        return {};
    }
    std::optional<QString> location(const QString& bundleID) const override {
        return locations.contains(bundleID) ? std::optional(locations.value(bundleID)) : std::nullopt;
    }
    AppIcon icon(const QString& bundleID) const override { return icons.value(bundleID); }
    QString fileManager() const override { return fileManagerID; }
    bool isBrowser(const QString& bundleID) const override { return browserIDs.contains(bundleID); }
    NativeApps nativeApps() const override { return {}; }

    void open(const QString& bundleID, bool activates) override {
        requests.append(QStringLiteral("open ") + bundleID + (activates ? QString() : QStringLiteral(" behind")));
    }
    QList<AppAction> actions(const QString&) const override { return {}; }
    std::optional<QString> applicationAt(const QUrl&) const override { return {}; }
    void openWindow(const QString& bundleID) override { requests.append(QStringLiteral("window ") + bundleID); }
    void openFiles(const QString& bundleID, const QList<QUrl>& files) override {
        openedFiles += files;
        requests.append(QStringLiteral("files ") + bundleID);
    }
    void runAction(const QString& bundleID, const QString& actionID) override {
        requests.append(QStringLiteral("action ") + bundleID + QLatin1Char(' ') + actionID);
    }
    void activate(qint64 pid) override { request("activate", pid); }
    void hide(qint64 pid) override { request("hide", pid); }
    void unhide(qint64 pid) override { request("unhide", pid); }
    void quit(qint64 pid) override { request("quit", pid); }
    void forceQuit(qint64 pid) override { request("forceQuit", pid); }

private:
    void request(const char* what, qint64 pid) {
        requests.append(QLatin1StringView(what) + QLatin1Char(' ') + QString::number(pid));
    }

    qint64 m_nextPid = 1000;
};

} // namespace fendrel
