#include "UI/Settings/AnswersModel.h"

#include "App/AppController.h"
#include "UI/Images/AppIcons.h"
#include "UI/MomentText.h"
#include "UI/WordSearch.h"

#include <QUrl>

#include <algorithm>

namespace fendrel {

using namespace Qt::StringLiterals;

namespace {

enum Role { keyRole = Qt::UserRole + 1, nameRole, whatRole, iconRole, modeNameRole, tintRole, judgedRole, dateRole };

QString judgedText(const Verdict& verdict) {
    if (verdict.source == Source::you)
        return AnswersModel::tr("You said so");
    if (verdict.source == Source::rule)
        return AnswersModel::tr("From a list");
    switch (verdict.certainty) {
    case Certainty::certain:
        return AnswersModel::tr("Fendrel is certain");
    case Certainty::likely:
        return AnswersModel::tr("Fendrel finds it likely");
    case Certainty::unsure:
        break;
    }
    return AnswersModel::tr("Fendrel is unsure");
}

} // namespace

QStringList AnswersModel::judgements() {
    QStringList texts;
    for (const Source source : {Source::you, Source::rule, Source::model}) {
        for (const Certainty certainty : {Certainty::certain, Certainty::likely, Certainty::unsure})
            texts.append(judgedText({.certainty = certainty, .source = source}));
    }
    texts.removeDuplicates();
    return texts;
}

AnswersModel::AnswersModel(AppController& controller, AppIcons& icons) : m_controller(controller), m_icons(icons) {
    connect(&controller.classifier(), &Classifier::answerChanged, this, &AnswersModel::readOne);
    connect(&controller.classifier(), &Classifier::answersReplaced, this, &AnswersModel::readAll);
    connect(&controller.engine(), &ModeEngine::changed, this, [this] {
        if (!m_rows.isEmpty())
            Q_EMIT dataChanged(index(0), index(rowCountOf() - 1), {modeNameRole, tintRole});
    });
    connect(&controller.workspace(), &Workspace::installedChanged, this, [this] {
        readNames();
        readAll();
    });
    readNames();
    readAll();
}

int AnswersModel::rowCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : rowCountOf();
}

QVariant AnswersModel::data(const QModelIndex& index, int role) const {
    if (!checkIndex(index, CheckIndexOption::IndexIsValid))
        return {};
    const QString& key = m_rows[index.row()].key;
    const LearnedAnswer answer = m_controller.classifier().answers().value(key);
    const Mode* mode = answer.verdict.modeID ? m_controller.engine().mode(*answer.verdict.modeID) : nullptr;
    switch (role) {
    case keyRole:
        return key;
    case Qt::DisplayRole:
    case nameRole:
        return nameOf(key);
    case whatRole:
        return answer.verdict.what == nameOf(key) ? QString() : answer.verdict.what;
    case iconRole:
        return isApp(key) ? m_icons.source(key) : QString();
    case modeNameRole:
        return mode ? mode->name : QString();
    case tintRole:
        return mode ? color(mode->tint) : color(Tint::graphite);
    case judgedRole:
        return judgedText(answer.verdict);
    case dateRole:
        return answer.date ? momentText(*answer.date, m_controller.platform().clock->now()) : QString();
    default:
        return {};
    }
}

QHash<int, QByteArray> AnswersModel::roleNames() const {
    return {{keyRole, "key"},           {nameRole, "name"}, {whatRole, "what"},     {iconRole, "icon"},
            {modeNameRole, "modeName"}, {tintRole, "tint"}, {judgedRole, "judged"}, {dateRole, "date"}};
}

void AnswersModel::show(const Filter& filter) {
    if (filter == m_filter)
        return;
    m_filter = filter;
    readAll();
}

QString AnswersModel::nameOf(const QString& key) const {
    const auto name = m_names.constFind(key);
    return name != m_names.constEnd() ? *name : isApp(key) ? key : QUrl::fromAce(key.toLatin1());
}

/// Hosts come in lower case and with dots, and none begins as identifiers of applications do.
bool AnswersModel::isApp(const QString& key) const {
    const auto isReversed = [&](QLatin1StringView start) { return key.startsWith(start) && key.count(u'.') > 1; };
    const bool isHost = key == key.toLower() && (key.contains(u'.') || key == "localhost"_L1) &&
                        !isReversed("com."_L1) && !isReversed("org."_L1) && !isReversed("net."_L1);
    return !isHost || m_names.contains(key);
}

bool AnswersModel::isBefore(const Row& one, const Row& other) {
    return one.time == other.time ? one.key < other.key : one.time > other.time;
}

bool AnswersModel::isShown(const QString& key) const {
    const auto& answers = m_controller.classifier().answers();
    const auto found = answers.constFind(key);
    if (found == answers.constEnd())
        return false;
    const Verdict& verdict = found->verdict;
    // What names a mode that is gone belongs to none.
    const bool hasMode = verdict.modeID && m_controller.engine().mode(*verdict.modeID);
    if (m_filter.modeID && *m_filter.modeID != (hasMode ? *verdict.modeID : QString()))
        return false;
    if (m_filter.source && *m_filter.source != verdict.source)
        return false;
    if (m_filter.words.isEmpty())
        return true;
    return eachIsIn(m_filter.words, nameOf(key) + u'\n' + key + u'\n' + verdict.what);
}

AnswersModel::Row AnswersModel::rowOf(const QString& key) const {
    const auto date = m_controller.classifier().answers().value(key).date;
    return {.key = key, .time = date ? date->time_since_epoch().count() : 0};
}

void AnswersModel::readAll() {
    beginResetModel();
    m_rows.clear();
    for (const QString& key : m_controller.classifier().answers().keys()) {
        if (isShown(key))
            m_rows.append(rowOf(key));
    }
    std::ranges::sort(m_rows, isBefore);
    endResetModel();
    Q_EMIT countChanged();
}

void AnswersModel::readOne(const QString& key) {
    const auto found = std::ranges::find(m_rows, key, &Row::key);
    const int row = static_cast<int>(found - m_rows.begin());
    const bool isThere = found != m_rows.end();
    const bool isWanted = isShown(key);
    if (isThere == isWanted) {
        if (isThere)
            Q_EMIT dataChanged(index(row), index(row));
        return;
    }
    if (isWanted) {
        const Row added = rowOf(key);
        const int place = static_cast<int>(std::ranges::lower_bound(m_rows, added, isBefore) - m_rows.begin());
        beginInsertRows({}, place, place);
        m_rows.insert(place, added);
        endInsertRows();
    }
    if (isThere) {
        beginRemoveRows({}, row, row);
        m_rows.removeAt(row);
        endRemoveRows();
    }
    Q_EMIT countChanged();
}

void AnswersModel::readNames() {
    m_names.clear();
    for (const InstalledApp& app : m_controller.workspace().installedApps())
        m_names.insert(app.bundleID, app.name);
}

} // namespace fendrel
