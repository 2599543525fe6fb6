#pragma once

#include "Modes/Mode.h"
#include "UI/Modes/EntriesModel.h"
#include "UI/Modes/WidgetsModel.h"

#include <QList>
#include <QObject>
#include <QUrl>
#include <QVariantList>
#include <QtQmlIntegration>

namespace fendrel {

class AppController;
class AppIcons;

/// One mode as its user edits it. Every edit takes effect at once. The mode stays the edited one when another becomes
/// the current one.
class ModeEditor : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("made by the application")
    Q_PROPERTY(QString modeID READ modeID NOTIFY modeChanged)
    Q_PROPERTY(QString name READ name NOTIFY nameChanged)
    Q_PROPERTY(QString symbol READ symbol WRITE setSymbol NOTIFY changed)
    Q_PROPERTY(QString symbolLabel READ symbolLabel NOTIFY changed)
    Q_PROPERTY(QVariantList tints READ tints CONSTANT) ///< label and color of each
    Q_PROPERTY(int tint READ tint WRITE setTint NOTIFY changed)
    // What can be chosen, as texts, and the position of what is: whatever the mode has is among them.
    Q_PROPERTY(QList<QString> waits READ waits NOTIFY changed)
    Q_PROPERTY(int wait READ wait WRITE setWait NOTIFY changed)
    Q_PROPERTY(QList<QString> allowances READ allowances NOTIFY changed)
    Q_PROPERTY(int allowance READ allowance WRITE setAllowance NOTIFY changed)
    Q_PROPERTY(fendrel::EntriesModel* apps READ apps CONSTANT)
    Q_PROPERTY(fendrel::EntriesModel* sites READ sites CONSTANT)
    Q_PROPERTY(fendrel::EntriesModel* candidates READ candidates CONSTANT)
    Q_PROPERTY(fendrel::EntriesModel* widgets READ widgets CONSTANT)
    Q_PROPERTY(fendrel::WidgetsModel* widgetKinds READ widgetKinds CONSTANT)

public:
    ModeEditor(AppController& controller, AppIcons& icons);

    const QString& modeID() const { return m_mode.id; }
    const QString& name() const { return m_mode.name; }
    const QString& symbol() const { return m_mode.symbol; }
    QString symbolLabel() const;
    QVariantList tints() const;
    int tint() const { return static_cast<int>(m_mode.tint); }
    QStringList waits() const;
    int wait() const;
    QStringList allowances() const;
    int allowance() const;
    EntriesModel* apps() { return &m_apps; }
    EntriesModel* sites() { return &m_sites; }
    EntriesModel* candidates() { return &m_candidates; }   ///< installed, not in the mode, and found by `search`
    EntriesModel* widgets() { return &m_widgets; }         ///< in the order in which they were chosen
    WidgetsModel* widgetKinds() { return &m_widgetKinds; } ///< found by `searchWidgets`

    /// From now on this mode is the edited one; an unknown one stands for the current one.
    Q_INVOKABLE void edit(const QString& modeID);
    Q_INVOKABLE void rename(const QString& name); ///< an empty name leaves the old one
    void setSymbol(const QString& symbol);
    /// The symbols that words find: name and label of each.
    Q_INVOKABLE QVariantList findSymbols(const QString& words) const;
    void setTint(int tint);
    void setWait(int choice);
    void setAllowance(int choice);
    Q_INVOKABLE void addApp(const QString& bundleID);
    Q_INVOKABLE void removeApp(const QString& bundleID);
    /// Adds the applications that these files stand for, as they are dragged from a file manager or a menu. The answer
    /// says what was none, or is empty.
    Q_INVOKABLE QString addFiles(const QList<QUrl>& files);
    /// Adds the sites of addresses as people type or paste them, with white space between them. When one of them is
    /// none, nothing is added: `isProblem`, and `text` says why. Else `text` names what was on the list already.
    Q_INVOKABLE QVariantMap addSites(const QString& typed);
    Q_INVOKABLE void removeSite(const QString& site);
    Q_INVOKABLE void search(const QString& words); ///< in names; with none, `candidates` are all that there are
    Q_INVOKABLE void chooseWidget(const QString& widget, bool isChosen);
    Q_INVOKABLE void searchWidgets(const QString& words);

Q_SIGNALS:
    void modeChanged();
    void nameChanged();
    void changed();

private:
    void refresh();
    void showWidgetKinds();
    QString alsoIn(QStringList Mode::*list, const QString& entry) const;

    AppController& m_controller;
    Mode m_mode; ///< as it is shown
    EntriesModel m_apps;
    EntriesModel m_sites;
    EntriesModel m_candidates;
    EntriesModel m_widgets;
    WidgetsModel m_widgetKinds;
    QString m_words;
    QString m_widgetWords;
};

} // namespace fendrel
