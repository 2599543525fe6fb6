#include "UI/Modes/ModeEditor.h"

#include "App/AppController.h"
#include "Modes/SiteName.h"
#include "UI/Countdown.h"
#include "UI/Images/AppIcons.h"
#include "UI/Modes/SymbolCatalog.h"
#include "Widgets/DockWidget.h"

#include <QLocale>
#include <QRegularExpression>

#include <algorithm>

namespace fendrel {

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace {

QList<Seconds> with(QList<Seconds> choices, Seconds chosen) {
    if (!choices.contains(chosen))
        choices.insert(std::ranges::upper_bound(choices, chosen), chosen);
    return choices;
}

QList<Seconds> waitChoices(const Mode& mode) {
    return with({0s, 6s, 15s, 30s, 60s}, std::max(mode.entryDelay, Seconds{}));
}

QList<Seconds> allowanceChoices(const Mode& mode) {
    return with({0s, 15min, 30min, 1h, 2h}, std::max(mode.dailyBudget, Seconds{}));
}

/// A single word is nearly always the half of an address, and would never match.
std::optional<QString> typedSite(const QString& typed) {
    const auto site = siteName(typed);
    const bool isMeant = site && (site->contains(u'.') || *site == "localhost"_L1 || typed.contains("://"_L1));
    return isMeant ? site : std::nullopt;
}

/// Names in other scripts as people write them.
QString shownSite(const QString& site) {
    return QUrl::fromAce(site.toLatin1());
}

QString shortened(const QString& text) {
    constexpr int length = 40;
    return text.size() <= length ? text : text.left(length) + u'…';
}

} // namespace

ModeEditor::ModeEditor(AppController& controller, AppIcons& icons)
    : m_controller(controller),
      m_mode(controller.engine().current()),
      m_apps([&icons](const QString& bundleID) { return icons.source(bundleID); }),
      m_candidates([&icons](const QString& bundleID) { return icons.source(bundleID); }) {
    connect(&controller.engine(), &ModeEngine::changed, this, &ModeEditor::refresh);
    connect(&controller.workspace(), &Workspace::installedChanged, this, [this] {
        refresh();
        m_apps.refreshIcons();
        m_candidates.refreshIcons();
    });
    refresh();
}

QVariantList ModeEditor::tints() const {
    const std::pair<Tint, QString> all[] = {
        {Tint::amber, tr("Amber")},   {Tint::coral, tr("Coral")},       {Tint::pink, tr("Pink")},
        {Tint::purple, tr("Purple")}, {Tint::blue, tr("Blue")},         {Tint::teal, tr("Teal")},
        {Tint::green, tr("Green")},   {Tint::graphite, tr("Graphite")},
    };
    QVariantList list;
    for (const auto& [tint, label] : all)
        list.append(QVariantMap{{u"label"_s, label}, {u"color"_s, color(tint)}});
    return list;
}

QStringList ModeEditor::waits() const {
    QStringList texts;
    for (const Seconds wait : waitChoices(m_mode))
        texts.append(wait == 0s ? tr("None") : remainingText(wait));
    return texts;
}

int ModeEditor::wait() const {
    return static_cast<int>(waitChoices(m_mode).indexOf(std::max(m_mode.entryDelay, Seconds{})));
}

QStringList ModeEditor::allowances() const {
    QStringList texts;
    for (const Seconds allowance : allowanceChoices(m_mode)) {
        const auto hours = std::chrono::duration_cast<std::chrono::hours>(allowance);
        texts.append(allowance == 0s      ? tr("None")
                     : allowance == hours ? tr("%1 h").arg(hours.count())
                                          : remainingText(allowance));
    }
    return texts;
}

int ModeEditor::allowance() const {
    return static_cast<int>(allowanceChoices(m_mode).indexOf(std::max(m_mode.dailyBudget, Seconds{})));
}

QString ModeEditor::symbolLabel() const {
    return fendrel::symbolLabel(m_mode.symbol);
}

QVariantList ModeEditor::findSymbols(const QString& words) const {
    QVariantList list;
    for (const SymbolChoice& symbol : fendrel::findSymbols(words))
        list.append(QVariantMap{{u"name"_s, symbol.name}, {u"label"_s, symbol.label}});
    return list;
}

/// A remark about an entry that other modes list too.
QString ModeEditor::alsoIn(QStringList Mode::*list, const QString& entry) const {
    QStringList names;
    for (const Mode& mode : m_controller.engine().modes()) {
        if (mode.id != m_mode.id && (mode.*list).contains(entry))
            names.append(mode.name);
    }
    return names.isEmpty() ? QString() : tr("also in %1").arg(QLocale().createSeparatedList(names));
}

void ModeEditor::edit(const QString& modeID) {
    const ModeEngine& engine = m_controller.engine();
    const Mode* wanted = engine.mode(modeID);
    const Mode old = std::exchange(m_mode, wanted ? *wanted : engine.current());
    if (m_mode.id != old.id)
        Q_EMIT modeChanged();
    if (m_mode.name != old.name)
        Q_EMIT nameChanged();
    QList<EntriesModel::Row> apps, sites, widgets;
    for (const QString& bundleID : m_mode.apps)
        apps.append({.id = bundleID,
                     .name = m_controller.workspace().displayName(bundleID),
                     .note = alsoIn(&Mode::apps, bundleID)});
    for (const QString& site : m_mode.sites)
        sites.append({.id = site, .name = shownSite(site), .note = alsoIn(&Mode::sites, site)});
    for (const WidgetItem& item : widgetItems(m_mode.widgets))
        widgets.append({.id = kind(item.widget).id(), .name = kind(item.widget).title()});
    m_apps.show(apps);
    m_sites.show(sites);
    m_widgets.show(widgets);
    showWidgetKinds();
    search(m_words);
    Q_EMIT changed();
}

void ModeEditor::refresh() {
    edit(QString(m_mode.id));
}

void ModeEditor::rename(const QString& name) {
    Mode mode = m_mode;
    mode.name = name.simplified();
    if (!mode.name.isEmpty())
        m_controller.engine().update(mode);
}

void ModeEditor::setSymbol(const QString& symbol) {
    Mode mode = m_mode;
    mode.symbol = symbol;
    m_controller.engine().update(mode);
}

void ModeEditor::setTint(int tint) {
    Mode mode = m_mode;
    mode.tint = static_cast<Tint>(std::clamp(tint, 0, static_cast<int>(Tint::graphite)));
    m_controller.engine().update(mode);
}

void ModeEditor::setWait(int choice) {
    Mode mode = m_mode;
    mode.entryDelay = waitChoices(m_mode).value(choice, m_mode.entryDelay);
    m_controller.engine().update(mode);
}

void ModeEditor::setAllowance(int choice) {
    Mode mode = m_mode;
    mode.dailyBudget = allowanceChoices(m_mode).value(choice, m_mode.dailyBudget);
    m_controller.engine().update(mode);
}

void ModeEditor::addApp(const QString& bundleID) {
    m_controller.engine().addApp(bundleID, m_mode.id);
}

void ModeEditor::removeApp(const QString& bundleID) {
    m_controller.engine().removeApp(bundleID, m_mode.id);
}

QString ModeEditor::addFiles(const QList<QUrl>& files) {
    const QString modeID = m_mode.id;
    QStringList others;
    for (const QUrl& file : files) {
        if (const auto bundleID = m_controller.workspace().applicationAt(file))
            m_controller.engine().addApp(*bundleID, modeID);
        else
            others.append(shortened(file.fileName()));
    }
    return others.isEmpty() ? QString() : tr("%1 is not an application.").arg(others.first());
}

QVariantMap ModeEditor::addSites(const QString& typed) {
    const auto answer = [](const QString& text, bool isProblem) {
        return QVariantMap{{u"text"_s, text}, {u"isProblem"_s, isProblem}};
    };
    // As they come out of letters and lists.
    static const QRegularExpression between(uR"([<>"'()]*(?:[\s,;]+|^|$)[<>"'()]*)"_s);
    QStringList sites, known, strange;
    for (const QString& address : typed.split(between, Qt::SkipEmptyParts)) {
        const auto site = typedSite(address);
        if (!site)
            strange.append(shortened(address));
        else if (m_mode.sites.contains(*site))
            known.append(shownSite(*site));
        else
            sites.append(*site);
    }
    const QString modeID = m_mode.id;
    for (const QString& site : std::as_const(sites))
        m_controller.engine().addSite(site, modeID);
    if (strange.size() == 1)
        return answer(tr("“%1” is not the address of a web site. One looks like example.org.").arg(strange.first()),
                      true);
    if (!strange.isEmpty())
        return answer(tr("These are not addresses of web sites: %1. One looks like example.org.")
                          .arg(QLocale().createSeparatedList(strange.first(std::min<qsizetype>(strange.size(), 5)))),
                      true);
    if (known.isEmpty())
        return answer({}, false);
    return answer(known.size() == 1
                      ? tr("%1 is on the list already.").arg(known.first())
                      : tr("%n of them are on the list already.", nullptr, static_cast<int>(known.size())),
                  false);
}

void ModeEditor::removeSite(const QString& site) {
    m_controller.engine().removeSite(site, m_mode.id);
}

void ModeEditor::search(const QString& words) {
    m_words = words;
    QList<EntriesModel::Row> found;
    for (const InstalledApp& app : m_controller.workspace().installedApps()) {
        if (!m_mode.apps.contains(app.bundleID) && app.name.contains(m_words.trimmed(), Qt::CaseInsensitive))
            found.append({.id = app.bundleID, .name = app.name});
    }
    m_candidates.show(found);
}

void ModeEditor::chooseWidget(const QString& widget, bool isChosen) {
    Mode mode = m_mode;
    mode.widgets.removeAll(widget);
    if (isChosen)
        mode.widgets.append(widget);
    m_controller.engine().update(mode);
}

void ModeEditor::searchWidgets(const QString& words) {
    m_widgetWords = words;
    showWidgetKinds();
}

void ModeEditor::showWidgetKinds() {
    m_widgetKinds.show(m_mode.widgets, m_widgetWords, [&widgets = m_controller.widgets()](auto& row) {
        row.isDrawn = widgets.feed(*enumValue<DockWidget>(row.id)) != nullptr;
    });
}

} // namespace fendrel
