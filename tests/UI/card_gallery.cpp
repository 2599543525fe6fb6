// Draws every card in every size and state, in light and dark and on both kinds of docks, without a display:
//   card_gallery <folder for the pictures> [LANGUAGE]

#include "CardSamples.h"
#include "UI/Images/SymbolImages.h"
#include "UI/Widgets/CardText.h"

#include <QDir>
#include <QFont>
#include <QGuiApplication>
#include <QQmlEngine>
#include <QQuickView>
#include <QTranslator>
#include <QtQml/qqmlextensionplugin.h>

Q_IMPORT_QML_PLUGIN(Fendrel_StylePlugin)
Q_IMPORT_QML_PLUGIN(Fendrel_WidgetsPlugin)

void qml_register_types_Fendrel_Types(); // NOLINT(readability-identifier-naming): the name is Qt's

using namespace fendrel;

namespace {

const DockWidget widgets[] = {DockWidget::github,    DockWidget::deploys, DockWidget::linear, DockWidget::sentry,
                              DockWidget::revenue,   DockWidget::weather, DockWidget::ticker, DockWidget::calendar,
                              DockWidget::reminders, DockWidget::aiUsage};
const QString logs = u"~/.claude/projects"_s;

/// The states of what is on this computer: as it is in the afternoon, another time, when there is nothing, and what is
/// lacking.
QList<CardContent> local(DockWidget widget) {
    const WallTime now = samples::afternoon();
    const auto made = [](const auto& tell) {
        CardContent card{.state = CardContent::State::ready};
        tell(card);
        return card;
    };
    const auto allowed = [widget](CalendarStore::Access access) {
        CardWorld world;
        world.calendar.state = access;
        return world.card(widget);
    };
    using enum CalendarStore::Access;
    const QList<CardContent> lacks{allowed(unknown), allowed(denied), allowed(missing)};
    switch (widget) {
    case DockWidget::aiUsage:
        return {made([&](auto& card) { describe(card, samples::usage(), logs, now); }),
                made([&](auto& card) { describe(card, samples::usage(false), logs, now); }),
                made([&](auto& card) { describe(card, usage::Summary{.hasLogs = true}, logs, now); }),
                made([&](auto& card) { describe(card, usage::Summary(), logs, now); }),
                {.state = CardContent::State::waiting}};
    case DockWidget::calendar: {
        const auto events = samples::events();
        const auto at = [&](const QList<CalendarFeed::Event>& shown, WallTime time) {
            return made([&](auto& card) {
                describe(card, shown, shown.isEmpty() ? std::nullopt : std::optional(shown.first()), time);
            });
        };
        return QList<CardContent>{at(events, now), at(events.mid(2), samples::at(13)), at({}, now)} + lacks;
    }
    default:
        return QList<CardContent>{made([&](auto& card) { describe(card, samples::reminders(), now); }),
                                  made([&](auto& card) { describe(card, samples::reminders().mid(0, 1), now); }),
                                  made([&](auto& card) { describe(card, QList<RemindersFeed::Item>(), now); })} +
               lacks;
    }
}

bool isLocal(DockWidget widget) {
    return widget == DockWidget::aiUsage || widget == DockWidget::calendar || widget == DockWidget::reminders;
}

CardContent ready(DockWidget widget) {
    const WallTime now = samples::afternoon();
    CardContent card{.state = CardContent::State::ready};
    switch (widget) {
    case DockWidget::github:
        describe(card, samples::pullRequests());
        break;
    case DockWidget::deploys:
        describe(card, samples::deploys(), now);
        break;
    case DockWidget::linear:
        describe(card, samples::issues(), now);
        break;
    case DockWidget::sentry:
        describe(card, samples::errors());
        break;
    case DockWidget::revenue:
        card.form = CardContent::Form::curve;
        describe(card, samples::day(), now);
        break;
    case DockWidget::weather:
        card.form = CardContent::Form::hours;
        describe(card, samples::weather(), {.name = u"Berlin"_s}, now);
        break;
    default:
        card.form = CardContent::Form::quotes;
        describe(card, samples::quotes());
    }
    return card;
}

CardContent old(DockWidget widget) {
    CardContent card = ready(widget);
    card.problem = u"GitHub answered 500"_s;
    card.age = QCoreApplication::translate("Card", "%1 ago").arg(card::age(samples::at(13), samples::at(15)));
    return card;
}

/// Of a service that nobody has a key for, that does not answer, that has not answered yet.
CardContent lacking(DockWidget widget, bool isConnected, bool answers) {
    CardWorld world;
    if (isConnected)
        world.connect({u"github"_s, u"vercel"_s, u"linear"_s, u"sentry"_s, u"stripe"_s});
    else
        world.settings.values.clear();
    world.show(widget);
    if (answers)
        world.http.serve(
            [isConnected](const auto&) { return isConnected ? FakeHttp::answer({}, 500) : FakeHttp::answer("{}"); });
    return world.card(widget);
}

CardContent empty(DockWidget widget) {
    CardContent card = ready(widget);
    CardContent bare{.state = CardContent::State::ready, .form = card.form};
    switch (widget) {
    case DockWidget::github:
        describe(bare, github::Snapshot());
        break;
    case DockWidget::deploys:
        describe(bare, QList<vercel::Deploy>(), samples::afternoon());
        break;
    case DockWidget::linear:
        describe(bare, QList<linear::Issue>(), samples::afternoon());
        break;
    case DockWidget::sentry:
        describe(bare, sentry::Snapshot());
        break;
    case DockWidget::revenue:
        describe(bare, RevenueDay(), samples::afternoon());
        break;
    case DockWidget::weather:
        return card;
    default:
        card.rows = card.rows.mid(0, 1);
        return card;
    }
    return bare;
}

QVariantList cards() {
    QVariantList list;
    for (const DockWidget widget : widgets) {
        const DockWidgetKind& kind = fendrel::kind(widget);
        QVariantList states;
        const auto asked = [widget] {
            return QList<CardContent>{ready(widget),
                                      old(widget),
                                      empty(widget),
                                      lacking(widget, false, true),
                                      lacking(widget, true, true),
                                      lacking(widget, true, false)};
        };
        for (const CardContent& content : isLocal(widget) ? local(widget) : asked())
            states.append(QVariant::fromValue(content));
        list.append(QVariantMap{{u"title"_s, kind.title()},
                                {u"shortTitle"_s, kind.shortTitle()},
                                {u"symbol"_s, kind.symbol},
                                {u"accent"_s, QColor::fromRgb(kind.accent)},
                                {u"states"_s, states}});
    }
    return list;
}

void takePicture(const QDir& folder, const QString& name, int extent, bool isDark, bool isVertical,
                 double textScale = 1, bool isMirrored = false) {
    QQuickView view;
    view.engine()->addImportPath(u"qrc:/qml"_s);
    view.engine()->addImageProvider(u"symbol"_s, new SymbolImages);
    view.setInitialProperties({{u"cards"_s, cards()},
                               {u"isDark"_s, isDark},
                               {u"isVertical"_s, isVertical},
                               {u"isMirrored"_s, isMirrored},
                               {u"textScale"_s, textScale},
                               {u"extent"_s, extent}});
    view.setSource(QUrl(u"qrc:/CardGallery.qml"_s));
    view.show();
    const QString file = name + (isVertical ? u"-vertical.png"_s : u".png"_s);
    if (view.status() != QQuickView::Ready || !view.grabWindow().save(folder.filePath(file)))
        qFatal("%s could not be taken", qPrintable(file));
}

} // namespace

int main(int argc, char** argv) {
    const QGuiApplication application(argc, argv);
    if (argc < 2)
        qFatal("card_gallery <folder for the pictures> [LANGUAGE]");
    const QDir folder(QString::fromLocal8Bit(argv[1]));
    folder.mkpath(u"."_s);
    QGuiApplication::setFont(QFont(u"Inter"_s));
    if (argc > 2)
        QLocale::setDefault(QLocale(QString::fromLatin1(argv[2])));
    // As the application does: the English one holds singulars and plurals.
    QTranslator english;
    QTranslator translator;
    for (auto [texts, language] : {std::pair(&english, QLocale(QLocale::English)), std::pair(&translator, QLocale())})
        if (texts->load(language, u"fendrel"_s, u"_"_s, u":/translations"_s))
            QCoreApplication::installTranslator(texts);
    qml_register_types_Fendrel_Types();
    for (const bool isVertical : {false, true}) {
        takePicture(folder, u"light"_s, 56, false, isVertical);
        takePicture(folder, u"dark"_s, 56, true, isVertical);
        takePicture(folder, u"small"_s, 46, false, isVertical);
        takePicture(folder, u"big"_s, 70, true, isVertical);
        takePicture(folder, u"large-text"_s, 56, false, isVertical, 2);
        takePicture(folder, u"mirrored"_s, 56, false, isVertical, 1, true);
    }
    return 0;
}
