#pragma once

#include "App/Alert.h"
#include "App/Capabilities.h"
#include "UI/Dock/DockController.h"
#include "UI/Focus/FocusController.h"
#include "UI/Focus/FocusGlow.h"
#include "UI/Focus/GateController.h"
#include "UI/Focus/GatePanel.h"
#include "UI/Focus/VerdictController.h"
#include "UI/Images/AppIcons.h"
#include "UI/Messages/CardsPanel.h"
#include "UI/Messages/MessagesController.h"
#include "UI/Settings/SettingsController.h"
#include "UI/Setup/FirstRunController.h"

#include <QQmlEngine>
#include <QString>

#include <functional>
#include <list>
#include <map>
#include <memory>

namespace fendrel {

class AppController;
class Dialog;
class DockPanel;

/// Everything that the user sees: makes the windows and keeps them in line with what the controller says.
class Interface {
public:
    explicit Interface(AppController& controller);
    ~Interface();

private:
    void whenFree(std::function<void()> show);
    void layoutDocks();
    void makeHidden();
    void placeCards();
    void focusDock();
    QSize windowSize(int width, int height) const;
    void showFirstRun();
    void showSettings(const QString& name); ///< a pane, or a setting on one
    void showModes(const QString& modeID);
    void showAlert(const Alert& alert);
    void showTray();
    void applyLook();

    AppController& m_controller;
    AppIcons m_icons;
    QQmlEngine m_engine;
    QObject* m_theme = nullptr; ///< the views' own, which lives as long as the engine
    FocusController m_focus;
    VerdictController m_verdict;
    GateController m_gate;
    MessagesController m_messages;
    DockController m_dock;
    Capabilities m_capabilities;
    FirstRunController m_firstRun;
    SettingsController m_settings;
    std::map<QString, std::unique_ptr<DockPanel>> m_docks; ///< by display
    std::unique_ptr<GatePanel> m_gatePanel;
    std::unique_ptr<CardsPanel> m_cards;
    std::unique_ptr<FocusGlow> m_glow;
    std::unique_ptr<Dialog> m_firstRunWindow;
    std::unique_ptr<Dialog> m_settingsWindow;
    std::unique_ptr<Dialog> m_modesWindow;
    std::list<std::unique_ptr<Dialog>> m_alerts;
    std::unique_ptr<QObject> m_tray;
    QList<std::function<void()>> m_waiting; ///< windows that show when the gate closes
    Handle m_hiddenDue;
};

} // namespace fendrel
