#include "UI/Settings/SettingsSearch.h"

namespace fendrel {

using namespace Qt::StringLiterals;

QList<SettingEntry> findSettings(const QList<SettingEntry>& entries, const QString& query) {
    const QStringList wanted = foldedWords(query);
    if (wanted.isEmpty())
        return {};
    QList<SettingEntry> named;
    QList<SettingEntry> inLabel;
    QList<SettingEntry> elsewhere;
    for (const SettingEntry& entry : entries) {
        const QStringList label = foldedWords(entry.label);
        const QStringList all = label + foldedWords(entry.words) + foldedWords(entry.help);
        if (wanted == label)
            named.append(entry);
        else if (eachBeginsOne(wanted, label))
            inLabel.append(entry);
        else if (eachBeginsOne(wanted, all))
            elsewhere.append(entry);
    }
    return named + inLabel + elsewhere;
}

QVariantList SettingsSearch::results() const {
    QVariantList list;
    for (const SettingEntry& entry : findSettings(settingsCatalog::entries(), m_query)) {
        list.append(QVariantMap{{u"setting"_s, entry.setting},
                                {u"pane"_s, entry.pane},
                                {u"name"_s, entry.label},
                                {u"paneName"_s, settingsCatalog::entry(entry.pane).label},
                                {u"label"_s, markedText(entry.label, m_query)},
                                {u"help"_s, markedText(entry.help, m_query)}});
    }
    return list;
}

} // namespace fendrel
