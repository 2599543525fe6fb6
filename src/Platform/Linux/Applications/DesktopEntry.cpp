#include "Platform/Linux/Applications/DesktopEntry.h"

#include "Platform/Linux/Applications/KeyFile.h"

#include <algorithm>

namespace fendrel {

using namespace Qt::StringLiterals;

namespace {

using Group = KeyFile::mapped_type;

/// Undoes the escapes of a string value. Stops at an unescaped `end`, and leaves `value` after it.
QString unescaped(QStringView& value, QChar end = {}) {
    QString text;
    qsizetype index = 0;
    for (; index < value.size() && (end.isNull() || value[index] != end); ++index) {
        if (value[index] != u'\\' || index + 1 == value.size()) {
            text += value[index];
            continue;
        }
        const QChar escaped = value[++index];
        switch (escaped.unicode()) {
        case u's':
            text += u' ';
            break;
        case u'n':
            text += u'\n';
            break;
        case u't':
            text += u'\t';
            break;
        case u'r':
            text += u'\r';
            break;
        case u'\\':
            text += u'\\';
            break;
        default:
            // "\;" belongs to lists; in other values only what the standard names is an escape.
            if (escaped != end)
                text += u'\\';
            text += escaped;
        }
    }
    value = value.mid(std::min(index + 1, value.size()));
    return text;
}

QString stringValue(const Group& group, const QString& key) {
    const QString value = group.value(key);
    QStringView rest = value;
    return unescaped(rest);
}

QString localizedValue(const Group& group, const QString& key, const DesktopEntryContext& context) {
    for (const QString& locale : context.locales) {
        if (const QString suffixed = u"%1[%2]"_s.arg(key, locale); group.contains(suffixed))
            return stringValue(group, suffixed);
    }
    return stringValue(group, key);
}

bool isForThisDesktop(const Group& group, const DesktopEntryContext& context) {
    const auto namesIt = [&](const QString& key) {
        return std::ranges::any_of(desktopEntryList(group.value(key)),
                                   [&](const QString& desktop) { return context.desktops.contains(desktop); });
    };
    return !namesIt(u"NotShowIn"_s) && (!group.contains(u"OnlyShowIn"_s) || namesIt(u"OnlyShowIn"_s));
}

QList<DesktopAction> readActions(const KeyFile& file, const DesktopEntry& entry, const DesktopEntryContext& context) {
    QList<DesktopAction> actions;
    QStringList ids = desktopEntryList(file[u"Desktop Entry"_s].value(u"Actions"_s));
    ids.removeDuplicates();
    for (const QString& id : ids) {
        const Group group = file.value(u"Desktop Action "_s + id);
        const DesktopAction action{.id = id,
                                   .name = localizedValue(group, u"Name"_s, context),
                                   .exec = stringValue(group, u"Exec"_s),
                                   .icon = localizedValue(group, u"Icon"_s, context)};
        const bool canStart = !action.exec.isEmpty() || entry.isDBusActivatable;
        if (!action.name.isEmpty() && canStart && isForThisDesktop(group, context))
            actions.append(action);
    }
    return actions;
}

} // namespace

QStringList desktopEntryList(QStringView value) {
    QStringList list;
    while (!value.isEmpty()) {
        if (const QString item = unescaped(value, u';'); !item.isEmpty())
            list.append(item);
    }
    return list;
}

QStringList localeSuffixes(const QString& locale) {
    const auto modifierAt = locale.indexOf(u'@');
    const QString modifier = modifierAt < 0 ? QString() : locale.sliced(modifierAt);
    const QString base = locale.section(u'@', 0, 0).section(u'.', 0, 0);
    const QString language = base.section(u'_', 0, 0);
    QStringList suffixes;
    for (const QString& suffix : {base + modifier, base, language + modifier, language}) {
        if (!suffix.isEmpty() && suffix != "C"_L1 && suffix != "POSIX"_L1 && !suffixes.contains(suffix))
            suffixes.append(suffix);
    }
    return suffixes;
}

DesktopEntryContext DesktopEntryContext::ofThisSession() {
    DesktopEntryContext context;
    for (const char* name : {"LC_ALL", "LC_MESSAGES", "LANG"}) {
        if (const QString locale = qEnvironmentVariable(name); !locale.isEmpty()) {
            context.locales = localeSuffixes(locale);
            break;
        }
    }
    context.desktops = qEnvironmentVariable("XDG_CURRENT_DESKTOP").split(u':', Qt::SkipEmptyParts);
    return context;
}

std::optional<DesktopEntry> parseDesktopEntry(QByteArrayView content, const DesktopEntryContext& context) {
    const auto file = parseKeyFile(content, context.locales);
    const auto group = file.constFind(u"Desktop Entry"_s);
    if (group == file.constEnd())
        return {};
    const auto text = [&](const QString& key) { return stringValue(*group, key); };
    const auto flag = [&](const QString& key) { return group->value(key) == "true"_L1; };

    DesktopEntry entry;
    entry.isHidden = flag(u"Hidden"_s);
    if (entry.isHidden)
        return entry;
    entry.name = localizedValue(*group, u"Name"_s, context);
    entry.exec = text(u"Exec"_s);
    entry.isDBusActivatable = flag(u"DBusActivatable"_s);
    const bool canStart = !entry.exec.isEmpty() || entry.isDBusActivatable;
    if (text(u"Type"_s) != "Application"_L1 || entry.name.isEmpty() || !canStart)
        return {};
    entry.tryExec = text(u"TryExec"_s);
    entry.icon = localizedValue(*group, u"Icon"_s, context);
    entry.workingFolder = text(u"Path"_s);
    entry.startupClass = text(u"StartupWMClass"_s);
    entry.flatpakID = text(u"X-Flatpak"_s);
    entry.snapName = text(u"X-SnapInstanceName"_s);
    entry.mimeTypes = desktopEntryList(group->value(u"MimeType"_s));
    entry.categories = desktopEntryList(group->value(u"Categories"_s));
    entry.needsTerminal = flag(u"Terminal"_s);
    entry.isOffered = !flag(u"NoDisplay"_s) && isForThisDesktop(*group, context);
    entry.actions = readActions(file, entry, context);
    return entry;
}

} // namespace fendrel
