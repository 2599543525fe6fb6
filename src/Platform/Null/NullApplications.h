#pragma once

#include "Ports/Applications.h"

namespace fendrel {

class NullApplications final : public Applications {
public:
    QList<InstalledApp> installed() const override { return {}; }
    QList<RunningApp> running() const override { return {}; }
    std::optional<RunningApp> frontmost() const override { return {}; }
    std::optional<QString> location(const QString&) const override { return {}; }
    AppIcon icon(const QString&) const override { return {}; }
    QString fileManager() const override { return {}; }
    bool isBrowser(const QString&) const override { return false; }
    NativeApps nativeApps() const override { return {}; }
    QList<AppAction> actions(const QString&) const override { return {}; }
    std::optional<QString> applicationAt(const QUrl&) const override { return {}; }
    void open(const QString&, bool) override {}
    void openWindow(const QString&) override {}
    void openFiles(const QString&, const QList<QUrl>&) override {}
    void runAction(const QString&, const QString&) override {}
    void activate(qint64) override {}
    void hide(qint64) override {}
    void unhide(qint64) override {}
    void quit(qint64) override {}
    void forceQuit(qint64) override {}
};

} // namespace fendrel
