#pragma once

#include "UI/Setup/PermissionsModel.h"

#include <QObject>
#include <QStringList>
#include <QVariantList>
#include <QtQmlIntegration>

#include <memory>

namespace fendrel {

class AppController;
class AppIcons;

/// The first run, page by page: the modes to start with, the browser, what this system lacks, and the start. What was
/// chosen is kept, so that it can be left and taken up again. Once it is done it can be repeated, and then only adds.
class FirstRunController : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("made by the application")
    Q_PROPERTY(int page READ page WRITE setPage NOTIFY changed)
    Q_PROPERTY(int pageCount READ pageCount CONSTANT)
    Q_PROPERTY(bool isRepeat READ isRepeat NOTIFY changed)
    /// The templates: modeID, name, symbol, tint, apps (names of the installed ones), icons (theirs), and whether the
    /// mode exists already. Only `chosen` changes as the user picks.
    Q_PROPERTY(QVariantList templates READ templates NOTIFY templatesChanged)
    Q_PROPERTY(QStringList chosen READ chosen NOTIFY changed)
    Q_PROPERTY(fendrel::PermissionsModel* browsers READ browsers CONSTANT)
    Q_PROPERTY(fendrel::PermissionsModel* problems READ problems CONSTANT)
    Q_PROPERTY(QString systemDock READ systemDock NOTIFY changed)
    Q_PROPERTY(QString dockHelp READ dockHelp NOTIFY changed)
    Q_PROPERTY(bool replacesDock READ replacesDock NOTIFY changed)
    Q_PROPERTY(bool startsAtLogin READ startsAtLogin WRITE setStartsAtLogin NOTIFY changed)
    Q_PROPERTY(bool isDark READ isDark NOTIFY changed)

public:
    FirstRunController(AppController& controller, AppIcons& icons, Capabilities& capabilities);

    static constexpr int pageCount() { return 4; }
    int page() const { return m_page; }
    void setPage(int page); ///< others than 0 to 3 are ignored
    bool isRepeat() const;
    QVariantList templates() const;
    const QStringList& chosen() const { return m_chosen; }
    PermissionsModel* browsers();
    PermissionsModel* problems();
    QString systemDock() const; ///< what there is to replace; empty when there is nothing
    QString dockHelp() const;   ///< what replacing it does
    bool replacesDock() const;
    bool startsAtLogin() const;
    void setStartsAtLogin(bool on);
    bool isDark() const;

    void begin(); ///< where it was left, or from the first page again once it is done

    Q_INVOKABLE void toggle(const QString& modeID); ///< modes that exist already stay chosen
    Q_INVOKABLE void replaceDock(bool on);          ///< asks first
    Q_INVOKABLE void finish();
    Q_INVOKABLE void leave();

Q_SIGNALS:
    void changed();
    void templatesChanged();
    void closed(); ///< its window may go

private:
    bool exists(const QString& modeID) const;

    AppController& m_controller;
    AppIcons& m_icons;
    Capabilities& m_capabilities;
    int m_page = 0;
    QStringList m_chosen;
    std::unique_ptr<PermissionsModel> m_browsers; ///< these are made when they are asked for first
    std::unique_ptr<PermissionsModel> m_problems;
};

} // namespace fendrel
