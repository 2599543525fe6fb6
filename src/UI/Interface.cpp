#include "UI/Interface.h"

#include "App/AppController.h"
#include "UI/Dock/DockPanel.h"
#include "UI/Images/ShadowImages.h"
#include "UI/Images/SymbolImages.h"
#include "UI/Images/TrayImages.h"
#include "UI/Settings/SettingsCatalog.h"
#include "UI/Setup/AlertController.h"
#include "UI/Setup/Dialog.h"

#include <QGuiApplication>
#include <QIcon>
#include <QQmlComponent>
#include <QQuickItem>
#include <QtQml/qqmlextensionplugin.h>

#include <algorithm>

Q_IMPORT_QML_PLUGIN(Fendrel_StylePlugin)
Q_IMPORT_QML_PLUGIN(Fendrel_DockPlugin)
Q_IMPORT_QML_PLUGIN(Fendrel_FocusPlugin)
Q_IMPORT_QML_PLUGIN(Fendrel_MessagesPlugin)
Q_IMPORT_QML_PLUGIN(Fendrel_ModesPlugin)
Q_IMPORT_QML_PLUGIN(Fendrel_SettingsPlugin)
Q_IMPORT_QML_PLUGIN(Fendrel_SetupPlugin)
Q_IMPORT_QML_PLUGIN(Fendrel_TrayPlugin)
Q_IMPORT_QML_PLUGIN(Fendrel_WidgetsPlugin)

/// Generated with the module Fendrel.Types. It registers itself before main, if only the linker keeps it.
void qml_register_types_Fendrel_Types(); // NOLINT(readability-identifier-naming): the name is Qt's

namespace fendrel {

using namespace Qt::StringLiterals;

namespace {

/// Asked through QML: Qt 6.4 has no type id for a singleton that is written in QML.
QObject* themeOf(QQmlEngine& engine) {
    QQmlComponent question(&engine);
    question.setData("import QtQml\nimport Fendrel.Style\nQtObject { readonly property QtObject theme: Theme }", {});
    const std::unique_ptr<QObject> answer(question.create());
    if (!answer)
        qWarning().noquote() << question.errorString();
    return answer ? answer->property("theme").value<QObject*>() : nullptr;
}

} // namespace

Interface::Interface(AppController& controller)
    : m_controller(controller),
      m_icons(controller.workspace()),
      m_focus(controller),
      m_verdict(controller),
      m_gate(controller),
      m_messages(controller, m_icons),
      m_dock(controller, m_icons, m_messages),
      m_capabilities(controller),
      m_firstRun(controller, m_icons, m_capabilities),
      m_settings(controller, m_icons, m_capabilities) {
    qml_register_types_Fendrel_Types();
    m_engine.addImportPath(u"qrc:/qml"_s);
    m_engine.addImageProvider(u"app"_s, m_icons.makeProvider());
    m_engine.addImageProvider(u"symbol"_s, new SymbolImages);
    m_engine.addImageProvider(u"shadow"_s, new ShadowImages);
    m_engine.addImageProvider(u"tray"_s, new TrayImages);
    m_theme = themeOf(m_engine); // NOLINT(cppcoreguidelines-prefer-member-initializer): the paths come first
    applyLook();

    controller.onLayoutDocks = [this] { layoutDocks(); };
    controller.onShowOnboarding = [this] { showFirstRun(); };
    controller.onShowSettings = [this](const QString& name) { whenFree([this, name] { showSettings(name); }); };
    controller.onShowModes = [this](const QString& modeID) { whenFree([this, modeID] { showModes(modeID); }); };
    controller.onAlert = [this](const Alert& alert) { whenFree([this, alert] { showAlert(alert); }); };
    controller.onAttention = [this] { whenFree([this] { showSettings(m_settings.pane()); }); };
    QObject::connect(&controller.gate(), &Gate::changed, &m_settings, [this] {
        if (m_controller.gate().blocked()) {
            makeHidden();
        } else {
            for (const auto& show : std::exchange(m_waiting, {}))
                show();
        }
    });
    QObject::connect(&m_messages, &MessagesController::changed, &m_settings, [this] {
        if (m_messages.hasAlert() || m_messages.hasList())
            makeHidden();
    });
    controller.onFocusDock = [this] { focusDock(); };
    controller.onOpenDockApp = [this](int index) { m_dock.openApp(index); };
    controller.platform().panels->onTransparencyChanged = [this] {
        for (const auto& [display, dock] : m_docks)
            dock->transparencyDidChange();
        if (m_gatePanel)
            Q_EMIT m_gatePanel->transparencyChanged();
        if (m_cards)
            Q_EMIT m_cards->transparencyChanged();
        m_glow->update();
        Q_EMIT m_controller.surroundingsChanged();
    };
    controller.platform().statusArea->onChanged = [this] {
        Q_EMIT m_controller.surroundingsChanged();
        if (m_gatePanel) // else its turn comes with the others'
            showTray();
    };
    controller.platform().loginItem->onChanged = [this] {
        Q_EMIT m_settings.stateChanged();
        Q_EMIT m_firstRun.changed();
    };
    // While something covers the dock, it draws no frame.
    m_hiddenDue = controller.platform().clock->after(std::chrono::seconds(2), [this] { makeHidden(); });
    QObject::connect(&controller.preferences(), &Preferences::changed, &m_settings, [this] { applyLook(); });

    m_glow = std::make_unique<FocusGlow>(controller);
}

Interface::~Interface() {
    m_controller.platform().panels->onTransparencyChanged = [] {};
    m_controller.platform().statusArea->onChanged = [] {};
    m_controller.platform().loginItem->onChanged = [] {};
}

/// What is not seen at the start is made when the dock has been drawn, or earlier where it is needed earlier: a user
/// who waits, waits for the dock.
void Interface::makeHidden() {
    if (m_gatePanel)
        return;
    m_gatePanel = std::make_unique<GatePanel>(m_engine, m_controller, m_icons, m_dock, m_focus, m_gate);
    m_gatePanel->dockArea = [this](const QString& displayID) {
        const auto dock = m_docks.find(displayID);
        return dock == m_docks.end() ? QRect() : dock->second->touchable();
    };
    m_cards = std::make_unique<CardsPanel>(m_engine, m_controller, m_dock, m_messages);
    placeCards();
    showTray();
}

/// A window that opens under the gate would take its keyboard without being seen.
void Interface::whenFree(std::function<void()> show) {
    if (m_controller.gate().blocked())
        m_waiting.append(std::move(show));
    else
        show();
}

void Interface::layoutDocks() {
    const QList<Display> displays = m_controller.dockScreens();
    moveToDisplays(m_docks, displays);
    for (const Display& display : displays) {
        auto& dock = m_docks[display.id];
        if (!dock) {
            dock = std::make_unique<DockPanel>(m_engine, m_controller, m_dock, m_focus, m_verdict);
            QObject::connect(dock.get(), &DockPanel::touchableChanged, &m_settings, [this] {
                if (m_gatePanel)
                    m_gatePanel->leaveOutDock();
            });
            QObject::connect(dock.get(), &DockPanel::barChanged, &m_settings, [this] { placeCards(); });
            QObject::connect(
                dock.get(), &DockPanel::frameSwapped, &m_settings, [this] { makeHidden(); },
                static_cast<Qt::ConnectionType>(Qt::QueuedConnection | Qt::SingleShotConnection));
        }
        dock->place(display);
    }
    m_glow->update();
    placeCards();
}

/// Beside one dock: messages are not read on several displays at once.
void Interface::placeCards() {
    const QList<Display> displays = m_controller.dockScreens();
    if (displays.isEmpty() || !m_cards)
        return;
    const auto dock = m_docks.find(displays.first().id);
    if (dock != m_docks.end())
        m_cards->place(displays.first(), dock->second->restingPlace());
}

/// A card that shows comes first, and the dock after it.
void Interface::focusDock() {
    if (m_cards && m_cards->hasCards() && !m_cards->hasKeyboard()) {
        m_cards->takeKeyboard();
        return;
    }
    if (m_cards)
        m_cards->releaseKeyboard();
    const auto dock = std::ranges::find_if(m_docks, [](const auto& entry) { return !entry.second->isCovered(); });
    if (dock != m_docks.end())
        dock->second->takeKeyboard();
}

/// With larger text, a larger window, as far as the screen allows.
QSize Interface::windowSize(int width, int height) const {
    return QSize(width, height) * std::clamp(m_controller.platform().look->textScale(), 1.0, 1.6);
}

void Interface::showFirstRun() {
    if (m_firstRunWindow) {
        m_firstRunWindow->present();
        return;
    }
    m_firstRun.begin();
    m_firstRunWindow = std::make_unique<Dialog>(
        m_engine, QCoreApplication::translate("Interface", "Welcome to Fendrel"), u"Setup/FirstRunView.qml"_s,
        QVariantMap{{u"firstRun"_s, QVariant::fromValue(&m_firstRun)}}, windowSize(760, 690));
    m_firstRunWindow->onClosed = [this] { m_firstRunWindow.release()->deleteLater(); };
    QObject::connect(&m_firstRun, &FirstRunController::closed, m_firstRunWindow.get(), [this] {
        // The window is still in the middle of the press that ended it.
        m_firstRunWindow->hide();
        m_firstRunWindow.release()->deleteLater();
    });
    m_firstRunWindow->present();
}

void Interface::showSettings(const QString& name) {
    const SettingEntry entry = settingsCatalog::entry(name);
    m_settings.setPane(entry.pane);
    if (!m_settingsWindow) {
        m_settingsWindow = std::make_unique<Dialog>(
            m_engine, QCoreApplication::translate("Interface", "Fendrel Settings"), u"Settings/SettingsView.qml"_s,
            QVariantMap{{u"settings"_s, QVariant::fromValue(&m_settings)}}, windowSize(860, 640));
        m_settingsWindow->onClosed = [this] { m_settingsWindow.release()->deleteLater(); };
    }
    Q_EMIT m_settings.opened(entry.setting);
    m_settingsWindow->present();
}

void Interface::showModes(const QString& modeID) {
    ModesController* modes = m_settings.modes();
    if (!m_modesWindow || m_controller.engine().mode(modeID))
        modes->editor()->edit(modeID);
    modes->dryRun()->refresh(); // it says "yesterday", and today may be another day
    if (!m_modesWindow) {
        m_modesWindow = std::make_unique<Dialog>(
            m_engine, QCoreApplication::translate("Interface", "Modes"), u"Modes/ModesView.qml"_s,
            QVariantMap{{u"modes"_s, QVariant::fromValue(modes)}}, windowSize(980, 720));
        m_modesWindow->onClosed = [this] { m_modesWindow.release()->deleteLater(); };
    }
    m_modesWindow->present();
}

void Interface::showAlert(const Alert& alert) {
    auto* answers = new AlertController(alert, m_controller.preferences().systemIsDark());
    auto& window = m_alerts.emplace_back(
        std::make_unique<Dialog>(m_engine, alert.message, u"Setup/AlertView.qml"_s,
                                 QVariantMap{{u"alert"_s, QVariant::fromValue(answers)}}, QSize()));
    answers->setParent(window.get());
    window->onClosed = [answers] { answers->cancel(); };
    QObject::connect(answers, &AlertController::done, window.get(), [this, dialog = window.get()] {
        const auto kept = std::ranges::find(m_alerts, dialog, [](const auto& other) { return other.get(); });
        dialog->hide();
        kept->release()->deleteLater();
        m_alerts.erase(kept);
    });
    // What asked the question waits for the answer.
    if (auto* asking = qobject_cast<Dialog*>(QGuiApplication::focusWindow()))
        window->showOver(asking);
    else
        window->present();
}

void Interface::showTray() {
    const bool isAvailable = m_controller.platform().statusArea->isAvailable();
    if (isAvailable == (m_tray != nullptr))
        return;
    m_tray.reset();
    if (!isAvailable)
        return;
    QQmlComponent component(&m_engine, QUrl(u"qrc:/qml/Fendrel/Tray/Tray.qml"_s));
    // Its module is not there on every system.
    if (component.isReady())
        m_tray.reset(component.createWithInitialProperties(
            {{u"dock"_s, QVariant::fromValue(&m_dock)}, {u"focusState"_s, QVariant::fromValue(&m_focus)}}));
    if (!m_tray)
        qWarning().noquote() << component.errorString();
}

void Interface::applyLook() {
    if (m_theme == nullptr)
        return;
    m_theme->setProperty("reducesMotion", m_controller.platform().look->reducesMotion());
    m_theme->setProperty("textScale", m_controller.platform().look->textScale());
    m_theme->setProperty("increasesContrast", m_controller.platform().look->increasesContrast());
}

} // namespace fendrel
