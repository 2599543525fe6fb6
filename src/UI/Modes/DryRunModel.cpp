#include "UI/Modes/DryRunModel.h"

#include "App/AppController.h"
#include "UI/Images/AppIcons.h"
#include "UI/SyncRows.h"

#include <QLocale>

namespace fendrel {

namespace {
enum Role {
    bundleIDRole = Qt::UserRole + 1,
    nameRole,
    iconRole,
    seenRole,
    placeRole,
    reasonRole,
    symbolRole,
    tintRole,
    isUndecidedRole
};
}

DryRunModel::DryRunModel(AppController& controller, AppIcons& icons) : m_controller(controller), m_icons(icons) {
    connect(&controller.engine(), &ModeEngine::changed, this, &DryRunModel::refresh);
    connect(&controller.classifier(), &Classifier::changed, this, &DryRunModel::refresh);
    connect(&controller.seen(), &SeenApps::changed, this, &DryRunModel::refresh);
    connect(&controller.workspace(), &Workspace::installedChanged, this, [this] {
        refresh();
        if (!m_rows.isEmpty())
            Q_EMIT dataChanged(index(0), index(static_cast<int>(m_rows.size()) - 1), {iconRole});
    });
    refresh();
}

int DryRunModel::rowCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : static_cast<int>(m_rows.size());
}

QVariant DryRunModel::data(const QModelIndex& index, int role) const {
    if (!checkIndex(index, CheckIndexOption::IndexIsValid))
        return {};
    const Row& row = m_rows[index.row()];
    switch (role) {
    case bundleIDRole:
        return row.id;
    case Qt::DisplayRole:
    case nameRole:
        return row.name;
    case iconRole:
        return m_icons.source(row.id);
    case seenRole:
        return row.seen;
    case placeRole:
        return row.place;
    case reasonRole:
        return row.reason;
    case symbolRole:
        return row.symbol;
    case tintRole:
        return row.tint;
    case isUndecidedRole:
        return row.isUndecided;
    default:
        return {};
    }
}

QHash<int, QByteArray> DryRunModel::roleNames() const {
    return {{bundleIDRole, "bundleID"}, {nameRole, "name"},   {iconRole, "icon"},
            {seenRole, "seen"},         {placeRole, "place"}, {reasonRole, "reason"},
            {symbolRole, "symbol"},     {tintRole, "tint"},   {isUndecidedRole, "isUndecided"}};
}

void DryRunModel::refresh() {
    QList<Row> wanted;
    for (const SeenApp& app : m_controller.seen().recent())
        wanted.append(row(app));
    RowSync<DryRunModel, Row>::sync(*this, m_rows, wanted);
}

DryRunModel::Row DryRunModel::row(const SeenApp& app) const {
    Classifier& classifier = m_controller.classifier();
    const ModeEngine& engine = m_controller.engine();
    Row row{.id = app.bundleID,
            .name = m_controller.workspace().displayName(app.bundleID),
            .seen = momentText(app.lastSeen)};
    if (engine.catalog().sharedApps.contains(app.bundleID)) {
        row.place = tr("Every mode");
        row.reason = tr("Belongs everywhere");
        return row;
    }
    const AppSubject subject{.bundleID = app.bundleID, .name = row.name};
    const auto listed = classifier.ruleVerdict(subject);
    const auto verdict = listed ? listed : classifier.cachedVerdict(subject);
    if (!verdict) {
        row.isUndecided = true;
        row.place = tr("Undecided");
        row.reason = classifier.isModelAvailable() ? tr("The model is asked when you use it") : tr("Is let be");
        return row;
    }
    row.reason = listed                             ? tr("Is on its list")
                 : verdict->source == Source::model ? tr("Learned earlier")
                                                    : tr("You said so");
    const Mode* mode = verdict->modeID ? engine.mode(*verdict->modeID) : nullptr;
    if (!mode) {
        row.place = tr("No mode");
        return row;
    }
    row.place = mode->name;
    row.symbol = mode->symbol;
    row.tint = color(mode->tint);
    return row;
}

QString DryRunModel::momentText(WallTime moment) const {
    const QDateTime at = toDateTime(moment).toLocalTime();
    const QDateTime now = toDateTime(m_controller.platform().clock->now()).toLocalTime();
    const QLocale locale;
    const QString format = locale.timeFormat(QLocale::ShortFormat).remove(QStringLiteral(":ss"));
    const QString time = locale.toString(at.time(), format);
    return at.date() == now.date() ? time : tr("Yesterday, %1").arg(time);
}

} // namespace fendrel
