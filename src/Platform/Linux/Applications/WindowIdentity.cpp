#include "Platform/Linux/Applications/WindowIdentity.h"

#include "Platform/Linux/Applications/ExecLine.h"

#include <algorithm>

namespace fendrel {

using namespace Qt::StringLiterals;

namespace {

bool names(const DesktopEntry& entry, const WindowTraits& window) {
    const auto isSame = [](const QString& left, const QString& right) {
        return !left.isEmpty() && left.compare(right, Qt::CaseInsensitive) == 0;
    };
    return isSame(entry.startupClass, window.className) || isSame(entry.startupClass, window.instanceName) ||
           isSame(entry.id, window.className) || isSame(entry.id, window.instanceName);
}

/// Of the entries of one sandbox: the one that names the window, else the one that carries the sandbox's own name.
const DesktopEntry* inSandbox(const EntryIndex::Entries& entries, const WindowTraits& window, const QString& mainID) {
    const auto named = std::ranges::find_if(entries, [&](const auto* entry) { return names(*entry, window); });
    if (named != entries.end())
        return *named;
    const auto main = std::ranges::find_if(entries, [&](const auto* entry) { return entry->id == mainID; });
    if (main != entries.end())
        return *main;
    return entries.isEmpty() ? nullptr : entries.first();
}

/// Of several entries that fit, the one whose program this is: a stable and a beta version share their window class.
const DesktopEntry* best(const EntryIndex::Entries& entries, const QStringList& programs) {
    const auto own =
        std::ranges::find_if(entries, [&](const auto* entry) { return programs.contains(programName(entry->exec)); });
    if (own != entries.end())
        return *own;
    return entries.isEmpty() ? nullptr : entries.first();
}

QStringList programsOf(const ProcessFacts& process) {
    QStringList programs;
    for (const QString& name : {programName(process.arguments), process.executable.section(u'/', -1)}) {
        if (!name.isEmpty() && !programs.contains(name))
            programs.append(name);
    }
    return programs;
}

} // namespace

const DesktopEntry* entryOfWindow(const WindowTraits& window, const EntryIndex& index) {
    const ProcessFacts& process = window.process;
    if (!window.declaredEntry.isEmpty()) {
        if (const auto* entry = index.byID(window.declaredEntry))
            return entry;
    }
    if (!process.flatpakID.isEmpty()) {
        if (const auto* entry = inSandbox(index.ofFlatpak(process.flatpakID), window, process.flatpakID))
            return entry;
    }
    if (!process.snapName.isEmpty()) {
        const QString mainID = u"%1_%2"_s.arg(process.snapName, process.snapApp);
        if (const auto* entry = inSandbox(index.ofSnap(process.snapName), window, mainID))
            return entry;
    }
    // One process may show several applications, and was started as one of them.
    const auto* launched = process.launchedEntry.isEmpty() ? nullptr : index.byPath(process.launchedEntry);
    if (launched != nullptr && (launched->startupClass.isEmpty() || names(*launched, window)))
        return launched;
    const QStringList programs = programsOf(process);
    for (const QString& name : {window.className, window.instanceName}) {
        if (const auto* entry = best(index.byStartupClass(name), programs))
            return entry;
    }
    for (const QString& name : {window.className, window.instanceName}) {
        if (const auto* entry = name.isEmpty() ? nullptr : index.byID(name))
            return entry;
    }
    if (const auto* entry = best(index.byLastPartOfID(window.className), programs))
        return entry;
    return launched;
}

const DesktopEntry* entryOfProgram(const ProcessFacts& process, const EntryIndex& index) {
    for (const QString& program : programsOf(process)) {
        if (const auto entries = index.byProgram(program); !entries.isEmpty())
            return entries.first();
    }
    return nullptr;
}

bool isWebApplication(const WindowTraits& window) {
    return window.instanceName.startsWith("crx_"_L1);
}

} // namespace fendrel
