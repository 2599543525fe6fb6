#include "App/Diagnostics.h"

#include "App/AppController.h"
#include "Base/EnumNames.h"

#include <QDir>
#include <QJsonArray>
#include <QJsonDocument>
#include <QLocale>
#include <QMetaProperty>
#include <QRegularExpression>
#include <QSysInfo>
#include <QUrl>

#include <algorithm>

namespace fendrel {

using namespace Qt::StringLiterals;

namespace {

const QString hidden = u"<private>"_s;

QJsonArray array(const QRect& rect) {
    return {rect.x(), rect.y(), rect.width(), rect.height()};
}

QString redacted(QString text, const QStringList& privateTexts) {
    static const QRegularExpression address(uR"([\w+.-]+://\S+|\S+@\S+)"_s);
    text.replace(address, hidden);
    for (const QString& secret : privateTexts) {
        if (secret.size() < 3) // it is in every other word
            text.replace(QRegularExpression(uR"((?<!\w)%1(?!\w))"_s.arg(QRegularExpression::escape(secret)),
                                            QRegularExpression::CaseInsensitiveOption |
                                                QRegularExpression::UseUnicodePropertiesOption),
                         hidden);
        else
            text.replace(secret, hidden, Qt::CaseInsensitive);
    }
    return text;
}

/// The ones that say how Fendrel behaves. What a user types is none of them, nor what came in since without a thought.
QJsonObject settingsOf(const Preferences& preferences) {
    constexpr std::array names{"dockSize",     "dockPosition", "dockDisplay",  "autoHide",
                               "magnify",      "focusGlow",    "sounds",       "modeModifiers",
                               "appModifiers", "clickToHide",  "tidyOnSwitch", "strictness",
                               "quietBanners", "passCritical", "matchSystem",  "crashReports"};
    QJsonObject settings;
    for (const char* name : names)
        settings.insert(QString::fromLatin1(name), QJsonValue::fromVariant(preferences.property(name)));
    return settings;
}

QStringList privateTextsOf(AppController& controller) {
    const Preferences& preferences = controller.preferences();
    QStringList texts = preferences.breakThroughWords();
    texts << preferences.modelServer() << preferences.modelName() << QDir::homePath() << QDir::home().dirName()
          << QSysInfo::machineHostName();
    texts << controller.widgets().ticker().symbols();
    if (const auto place = controller.widgets().weather().place())
        texts << place->name;
    texts << controller.platform().calendar->folders();
    for (const auto& event : controller.widgets().calendar().upcoming())
        texts << event.title << event.location;
    for (const auto& reminder : controller.widgets().reminders().items())
        texts << reminder.title;
    for (const ModeSnapshot& snapshot : controller.context().snapshots()) {
        texts << snapshot.titles << snapshot.note.value_or(QString());
        for (const auto& page : snapshot.pages)
            texts << page.title;
        for (const auto& document : snapshot.documents)
            texts << QUrl(document.url).fileName();
    }
    for (const Mode& mode : controller.engine().modes()) {
        texts << mode.name << mode.sites << mode.apps;
        for (const QString& app : mode.apps)
            texts << controller.workspace().displayName(app);
    }
    QStringList known = controller.classifier().answers().keys();
    for (const SeenApp& app : controller.seen().recent())
        known << app.bundleID;
    for (const QString& key : std::as_const(known))
        texts << key << controller.workspace().displayName(key);
    return texts;
}

} // namespace

QMap<QString, QByteArray> diagnosticFiles(const DiagnosticFacts& facts) {
    QJsonArray displays;
    for (const Display& display : facts.displays)
        displays.append(QJsonObject{{u"frame"_s, array(display.frame)},
                                    {u"workArea"_s, array(display.workArea)},
                                    {u"isMain"_s, display.isMain},
                                    {u"isFullScreen"_s, display.isFullScreen}});
    QJsonObject capabilities;
    for (const Capability& capability : facts.capabilities)
        capabilities.insert(capability.id, enumName(capability.state));

    // Many thousands of answers can be private: only what is in the log is looked for in each line. The longest first,
    // or a part of one would leave its rest behind.
    const QString whole = facts.log.join(u'\n').toCaseFolded();
    QStringList privateTexts = facts.privateTexts;
    privateTexts.removeIf([&](const QString& text) { return text.isEmpty() || !whole.contains(text.toCaseFolded()); });
    std::ranges::sort(privateTexts, std::greater{}, &QString::size);
    QStringList log;
    for (const QString& line : facts.log)
        log.append(redacted(line, privateTexts));

    const QJsonObject report{{u"system"_s, facts.system},
                             {u"displays"_s, displays},
                             {u"capabilities"_s, capabilities},
                             {u"settings"_s, facts.settings},
                             {u"crashReports"_s, QJsonArray::fromStringList(facts.crashReports)}};
    return {{u"report.json"_s, QJsonDocument(report).toJson()}, {u"log.txt"_s, log.join(u'\n').toUtf8() + '\n'}};
}

DiagnosticFacts diagnosticFacts(AppController& controller, const QList<Capability>& capabilities) {
    Platform& platform = controller.platform();
    const QJsonObject system{{u"fendrel"_s, QStringLiteral(FENDREL_VERSION)},
                             {u"qt"_s, QString::fromLatin1(qVersion())},
                             {u"system"_s, QSysInfo::prettyProductName()},
                             {u"kernel"_s, QSysInfo::kernelVersion()},
                             {u"processor"_s, QSysInfo::currentCpuArchitecture()},
                             {u"desktop"_s, qEnvironmentVariable("XDG_CURRENT_DESKTOP")},
                             {u"session"_s, qEnvironmentVariable("XDG_SESSION_TYPE")},
                             {u"language"_s, QLocale().name()},
                             {u"dock"_s, controller.replacement().dockName()},
                             {u"replacesDock"_s, controller.replacement().isOn()},
                             {u"isDark"_s, platform.look->isDark()},
                             {u"reducesMotion"_s, platform.look->reducesMotion()},
                             {u"increasesContrast"_s, platform.look->increasesContrast()},
                             {u"textScale"_s, platform.look->textScale()},
                             {u"modes"_s, controller.engine().modes().size()}};
    return {.system = system,
            .displays = platform.displays->all(),
            .capabilities = capabilities,
            .settings = settingsOf(controller.preferences()),
            .log = platform.recentLog(),
            .crashReports = QDir(platform.folders.crashes).entryList({u"Fendrel-*.ips"_s}, QDir::Files),
            .privateTexts = privateTextsOf(controller)};
}

} // namespace fendrel
