#include "UI/Modes/SymbolCatalog.h"

#include "UI/WordSearch.h"

#include <QCoreApplication>
#include <QDir>
#include <QSet>

#include <algorithm>

namespace fendrel {

using namespace Qt::StringLiterals;

namespace {

struct Named {
    const char* name;
    const char* words; ///< the label, then what else people search for
};

// The ones that suit a mode, related ones side by side.
constexpr Named named[] = {
    {"pencil", QT_TRANSLATE_NOOP("SymbolCatalog", "Pencil, write, edit, draft, author")},
    {"feather", QT_TRANSLATE_NOOP("SymbolCatalog", "Feather, poem, story, novel, write")},
    {"doc.text", QT_TRANSLATE_NOOP("SymbolCatalog", "Document, page, paper, report, text")},
    {"note.text", QT_TRANSLATE_NOOP("SymbolCatalog", "Note, sticky, memo, jot")},
    {"book", QT_TRANSLATE_NOOP("SymbolCatalog", "Book, read, study, library")},
    {"newspaper", QT_TRANSLATE_NOOP("SymbolCatalog", "Newspaper, news, press, article")},
    {"text.quote", QT_TRANSLATE_NOOP("SymbolCatalog", "Quote, quotation, citation")},
    {"textformat.characters", QT_TRANSLATE_NOOP("SymbolCatalog", "Letters, type, font, spelling")},
    {"translate", QT_TRANSLATE_NOOP("SymbolCatalog", "Languages, translate, foreign")},
    {"hammer", QT_TRANSLATE_NOOP("SymbolCatalog", "Hammer, build, make, craft, construction")},
    {"wrench", QT_TRANSLATE_NOOP("SymbolCatalog", "Wrench, tools, repair, fix, maintenance")},
    {"terminal", QT_TRANSLATE_NOOP("SymbolCatalog", "Terminal, code, shell, command, programming")},
    {"ant", QT_TRANSLATE_NOOP("SymbolCatalog", "Bug, debug, insect, test")},
    {"arrow.triangle.pull", QT_TRANSLATE_NOOP("SymbolCatalog", "Pull request, git, branch, review, code")},
    {"cube", QT_TRANSLATE_NOOP("SymbolCatalog", "Box, cube, model, 3D, object")},
    {"shippingbox", QT_TRANSLATE_NOOP("SymbolCatalog", "Package, parcel, shipping, delivery")},
    {"puzzlepiece", QT_TRANSLATE_NOOP("SymbolCatalog", "Puzzle, plugin, extension, problem")},
    {"desktopcomputer", QT_TRANSLATE_NOOP("SymbolCatalog", "Computer, desktop, screen, monitor")},
    {"gearshape", QT_TRANSLATE_NOOP("SymbolCatalog", "Gear, settings, engine, machine")},
    {"switch.2", QT_TRANSLATE_NOOP("SymbolCatalog", "Switch, toggle, controls")},
    {"function", QT_TRANSLATE_NOOP("SymbolCatalog", "Function, mathematics, formula, calculate")},
    {"calculator", QT_TRANSLATE_NOOP("SymbolCatalog", "Calculator, numbers, accounting, mathematics")},
    {"atom", QT_TRANSLATE_NOOP("SymbolCatalog", "Atom, physics, science")},
    {"flask", QT_TRANSLATE_NOOP("SymbolCatalog", "Flask, chemistry, laboratory, experiment, science")},
    {"microscope", QT_TRANSLATE_NOOP("SymbolCatalog", "Microscope, biology, research, laboratory")},
    {"graduationcap", QT_TRANSLATE_NOOP("SymbolCatalog", "Graduation cap, study, school, university, learn")},
    {"lightbulb", QT_TRANSLATE_NOOP("SymbolCatalog", "Light bulb, idea, think, brainstorm")},
    {"scope", QT_TRANSLATE_NOOP("SymbolCatalog", "Crosshair, aim, focus")},
    {"target", QT_TRANSLATE_NOOP("SymbolCatalog", "Target, goal, focus, aim")},
    {"briefcase", QT_TRANSLATE_NOOP("SymbolCatalog", "Briefcase, work, job, office, business")},
    {"building.2", QT_TRANSLATE_NOOP("SymbolCatalog", "Buildings, company, office, city")},
    {"megaphone", QT_TRANSLATE_NOOP("SymbolCatalog", "Megaphone, marketing, announce, campaign")},
    {"chart.bar", QT_TRANSLATE_NOOP("SymbolCatalog", "Bar chart, numbers, statistics, report")},
    {"chart.line.uptrend.xyaxis", QT_TRANSLATE_NOOP("SymbolCatalog", "Line chart, stocks, growth, analysis")},
    {"dollarsign.circle", QT_TRANSLATE_NOOP("SymbolCatalog", "Money, dollar, sales, revenue, finance")},
    {"creditcard", QT_TRANSLATE_NOOP("SymbolCatalog", "Credit card, pay, bank, shopping")},
    {"wallet", QT_TRANSLATE_NOOP("SymbolCatalog", "Wallet, money, budget, expenses")},
    {"scale", QT_TRANSLATE_NOOP("SymbolCatalog", "Scales, law, justice, balance, legal")},
    {"cart", QT_TRANSLATE_NOOP("SymbolCatalog", "Shopping cart, shop, buy, store")},
    {"bag", QT_TRANSLATE_NOOP("SymbolCatalog", "Shopping bag, shop, buy, groceries")},
    {"tag", QT_TRANSLATE_NOOP("SymbolCatalog", "Tag, label, price, sale")},
    {"bubble.left.and.bubble.right", QT_TRANSLATE_NOOP("SymbolCatalog", "Conversation, social, chat, talk, friends")},
    {"bubble.left", QT_TRANSLATE_NOOP("SymbolCatalog", "Speech bubble, chat, message, talk")},
    {"envelope", QT_TRANSLATE_NOOP("SymbolCatalog", "Envelope, mail, e-mail, letter, inbox")},
    {"tray.full", QT_TRANSLATE_NOOP("SymbolCatalog", "Inbox, tray, mail, collect")},
    {"paperplane", QT_TRANSLATE_NOOP("SymbolCatalog", "Paper plane, send, mail, message")},
    {"phone", QT_TRANSLATE_NOOP("SymbolCatalog", "Phone, call, telephone")},
    {"video", QT_TRANSLATE_NOOP("SymbolCatalog", "Video camera, meeting, call, conference")},
    {"mic", QT_TRANSLATE_NOOP("SymbolCatalog", "Microphone, record, podcast, voice, sing")},
    {"person", QT_TRANSLATE_NOOP("SymbolCatalog", "Person, me, profile, personal")},
    {"person.2", QT_TRANSLATE_NOOP("SymbolCatalog", "People, team, family, friends, group")},
    {"baby", QT_TRANSLATE_NOOP("SymbolCatalog", "Baby, child, family, parent")},
    {"heart", QT_TRANSLATE_NOOP("SymbolCatalog", "Heart, love, health, favorite")},
    {"hand.raised", QT_TRANSLATE_NOOP("SymbolCatalog", "Hand, stop, help, volunteer")},
    {"calendar", QT_TRANSLATE_NOOP("SymbolCatalog", "Calendar, date, plan, schedule")},
    {"clock", QT_TRANSLATE_NOOP("SymbolCatalog", "Clock, time, hours")},
    {"timer", QT_TRANSLATE_NOOP("SymbolCatalog", "Timer, stopwatch, sprint, pomodoro")},
    {"hourglass", QT_TRANSLATE_NOOP("SymbolCatalog", "Hourglass, wait, time, deadline")},
    {"checklist", QT_TRANSLATE_NOOP("SymbolCatalog", "Checklist, tasks, to do, chores")},
    {"list.bullet.circle", QT_TRANSLATE_NOOP("SymbolCatalog", "To-do list, issues, tasks, plan")},
    {"list.bullet", QT_TRANSLATE_NOOP("SymbolCatalog", "List, items, outline")},
    {"checkmark", QT_TRANSLATE_NOOP("SymbolCatalog", "Check mark, done, finish")},
    {"flag", QT_TRANSLATE_NOOP("SymbolCatalog", "Flag, goal, milestone, country")},
    {"pin", QT_TRANSLATE_NOOP("SymbolCatalog", "Pin, place, stay, important")},
    {"star", QT_TRANSLATE_NOOP("SymbolCatalog", "Star, favorite, special, rating")},
    {"trophy", QT_TRANSLATE_NOOP("SymbolCatalog", "Trophy, win, prize, competition")},
    {"paintbrush", QT_TRANSLATE_NOOP("SymbolCatalog", "Paintbrush, design, paint, draw, art")},
    {"paintpalette", QT_TRANSLATE_NOOP("SymbolCatalog", "Palette, color, art, paint")},
    {"scissors", QT_TRANSLATE_NOOP("SymbolCatalog", "Scissors, cut, craft, sewing, edit")},
    {"photo", QT_TRANSLATE_NOOP("SymbolCatalog", "Picture, photo, image, gallery")},
    {"photo.on.rectangle", QT_TRANSLATE_NOOP("SymbolCatalog", "Pictures, photos, album, gallery")},
    {"camera", QT_TRANSLATE_NOOP("SymbolCatalog", "Camera, photography, photo, shoot")},
    {"film", QT_TRANSLATE_NOOP("SymbolCatalog", "Film, movie, cinema, edit")},
    {"tv", QT_TRANSLATE_NOOP("SymbolCatalog", "Television, watch, series, stream")},
    {"theatermasks", QT_TRANSLATE_NOOP("SymbolCatalog", "Masks, theater, drama, acting")},
    {"music.note", QT_TRANSLATE_NOOP("SymbolCatalog", "Musical note, music, song, compose")},
    {"headphones", QT_TRANSLATE_NOOP("SymbolCatalog", "Headphones, listen, music, podcast, audio")},
    {"piano", QT_TRANSLATE_NOOP("SymbolCatalog", "Piano, keyboard, music, practice")},
    {"guitar", QT_TRANSLATE_NOOP("SymbolCatalog", "Guitar, music, band, practice")},
    {"dot.radiowaves.left.and.right", QT_TRANSLATE_NOOP("SymbolCatalog", "Radio, broadcast, live, on air")},
    {"gamecontroller", QT_TRANSLATE_NOOP("SymbolCatalog", "Game controller, play, games, fun")},
    {"dice", QT_TRANSLATE_NOOP("SymbolCatalog", "Dice, chance, board game, random")},
    {"house", QT_TRANSLATE_NOOP("SymbolCatalog", "House, home, household, family")},
    {"bed", QT_TRANSLATE_NOOP("SymbolCatalog", "Bed, sleep, rest, night")},
    {"cup.and.saucer", QT_TRANSLATE_NOOP("SymbolCatalog", "Cup, coffee, tea, break, pause")},
    {"fork.knife", QT_TRANSLATE_NOOP("SymbolCatalog", "Fork and knife, eat, food, cook, lunch")},
    {"gift", QT_TRANSLATE_NOOP("SymbolCatalog", "Gift, present, birthday, holiday")},
    {"dumbbell", QT_TRANSLATE_NOOP("SymbolCatalog", "Dumbbell, sport, fitness, training, gym")},
    {"figure.run", QT_TRANSLATE_NOOP("SymbolCatalog", "Footprints, walk, run, steps, hike")},
    {"bicycle", QT_TRANSLATE_NOOP("SymbolCatalog", "Bicycle, bike, cycling, sport")},
    {"cross.case", QT_TRANSLATE_NOOP("SymbolCatalog", "Stethoscope, doctor, medicine, health")},
    {"leaf", QT_TRANSLATE_NOOP("SymbolCatalog", "Leaf, nature, garden, plant")},
    {"tree", QT_TRANSLATE_NOOP("SymbolCatalog", "Tree, forest, nature, outdoors")},
    {"pawprint", QT_TRANSLATE_NOOP("SymbolCatalog", "Paw, pet, dog, cat, animal")},
    {"sun.max", QT_TRANSLATE_NOOP("SymbolCatalog", "Sun, day, summer, bright")},
    {"sun.horizon", QT_TRANSLATE_NOOP("SymbolCatalog", "Sunrise, morning, evening")},
    {"moon", QT_TRANSLATE_NOOP("SymbolCatalog", "Moon, night, sleep, evening")},
    {"cloud", QT_TRANSLATE_NOOP("SymbolCatalog", "Cloud, weather, server, storage")},
    {"cloud.sun", QT_TRANSLATE_NOOP("SymbolCatalog", "Sun and cloud, weather, forecast")},
    {"flame", QT_TRANSLATE_NOOP("SymbolCatalog", "Flame, fire, hot, urgent, streak")},
    {"bolt", QT_TRANSLATE_NOOP("SymbolCatalog", "Lightning, energy, fast, power, electricity")},
    {"sparkles", QT_TRANSLATE_NOOP("SymbolCatalog", "Sparkles, magic, new, AI, clean")},
    {"airplane", QT_TRANSLATE_NOOP("SymbolCatalog", "Airplane, travel, fly, trip, vacation")},
    {"car", QT_TRANSLATE_NOOP("SymbolCatalog", "Car, drive, commute, road")},
    {"map", QT_TRANSLATE_NOOP("SymbolCatalog", "Map, travel, places, route")},
    {"globe", QT_TRANSLATE_NOOP("SymbolCatalog", "Globe, world, web, internet, travel")},
    {"anchor", QT_TRANSLATE_NOOP("SymbolCatalog", "Anchor, sea, boat, sailing")},
    {"rocket", QT_TRANSLATE_NOOP("SymbolCatalog", "Rocket, launch, startup, space")},
    {"key", QT_TRANSLATE_NOOP("SymbolCatalog", "Key, secret, access, password")},
    {"lock", QT_TRANSLATE_NOOP("SymbolCatalog", "Lock, private, secure, safe")},
    {"eye", QT_TRANSLATE_NOOP("SymbolCatalog", "Eye, watch, look, review")},
    {"archivebox", QT_TRANSLATE_NOOP("SymbolCatalog", "Archive, files, storage, records")},
    {"folder", QT_TRANSLATE_NOOP("SymbolCatalog", "Folder, files, project")},
    {"square.stack", QT_TRANSLATE_NOOP("SymbolCatalog", "Layers, stack, levels")},
    {"square.stack.3d.up", QT_TRANSLATE_NOOP("SymbolCatalog", "Stack, layers, shortcuts")},
    {"square.grid.2x2", QT_TRANSLATE_NOOP("SymbolCatalog", "Grid, dashboard, overview, apps")},
    {"doc.on.clipboard", QT_TRANSLATE_NOOP("SymbolCatalog", "Clipboard, copy, paste, form")},
    {"battery.75percent", QT_TRANSLATE_NOOP("SymbolCatalog", "Battery, charge, energy")},
    {"gauge.with.dots.needle.33percent", QT_TRANSLATE_NOOP("SymbolCatalog", "Gauge, speed, performance, monitor")},
    {"triangle", QT_TRANSLATE_NOOP("SymbolCatalog", "Triangle, shape, deploy")},
    {"bell", QT_TRANSLATE_NOOP("SymbolCatalog", "Bell, alarm, reminder, notification")},
    {"magnifyingglass", QT_TRANSLATE_NOOP("SymbolCatalog", "Magnifying glass, search, find, research")},
    {"questionmark.circle", QT_TRANSLATE_NOOP("SymbolCatalog", "Question mark, help, ask, support")},
    {"info.circle", QT_TRANSLATE_NOOP("SymbolCatalog", "Information, details, about")},
    {"exclamationmark.triangle", QT_TRANSLATE_NOOP("SymbolCatalog", "Warning, danger, incident, emergency")},
};

struct Searched {
    SymbolChoice choice;
    QStringList words;
};

/// Symbols of controls and of things to come have no words of their own: their names are made of such.
QString plainLabel(const QString& name) {
    QString label = QString(name).replace(u'.', u' ');
    return label.left(1).toUpper() + label.mid(1);
}

QString translatedWords(const Named& symbol) {
    return QCoreApplication::translate("SymbolCatalog", symbol.words);
}

QList<Searched> allSymbols() {
    QList<Searched> all;
    QSet<QString> known;
    for (const Named& symbol : named) {
        const QString name = QString::fromLatin1(symbol.name);
        const QString words = translatedWords(symbol);
        known.insert(name);
        all.append({{.name = name, .label = words.section(u',', 0, 0)}, foldedWords(words) + foldedWords(name)});
    }
    for (const QString& file : QDir(u":/symbols"_s).entryList({u"*.svg"_s}, QDir::Files, QDir::Name)) {
        const QString name = file.chopped(4);
        if (!known.contains(name))
            all.append({{.name = name, .label = plainLabel(name)}, foldedWords(name)});
    }
    return all;
}

} // namespace

QList<SymbolChoice> findSymbols(const QString& words) {
    const QStringList wanted = foldedWords(words);
    QList<SymbolChoice> found;
    for (const Searched& symbol : allSymbols()) {
        if (eachBeginsOne(wanted, symbol.words))
            found.append(symbol.choice);
    }
    return found;
}

QString symbolLabel(const QString& name) {
    const auto symbol =
        std::ranges::find(named, name, [](const Named& each) { return QString::fromLatin1(each.name); });
    return symbol == std::end(named) ? plainLabel(name) : translatedWords(*symbol).section(u',', 0, 0);
}

} // namespace fendrel
