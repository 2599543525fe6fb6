#pragma once

#include "Base/EnumNames.h"

#include <QColor>
#include <QList>
#include <QObject>
#include <QString>
#include <QStringList>
#include <QUrl>
#include <QVariantList>
#include <QtQmlIntegration>

namespace fendrel {

/// What the card of a widget says now, whatever service it is from. Texts are in the user's language. Views know
/// enumerators by their names.
struct CardContent {
    Q_GADGET
    QML_VALUE_TYPE(cardContent)
    Q_PROPERTY(QString state READ stateName)
    Q_PROPERTY(QString form READ formName)
    Q_PROPERTY(QString tone READ toneName)
    Q_PROPERTY(QString headline MEMBER headline)
    Q_PROPERTY(QString brief MEMBER brief)
    Q_PROPERTY(QString caption MEMBER caption)
    Q_PROPERTY(QString unit MEMBER unit)
    Q_PROPERTY(QString note MEMBER note)
    Q_PROPERTY(QString symbol MEMBER symbol)
    Q_PROPERTY(QVariantList rows MEMBER rows)
    Q_PROPERTY(QList<qreal> curve MEMBER curve)
    Q_PROPERTY(qreal curveNow MEMBER curveNow)
    Q_PROPERTY(qreal gauge MEMBER gauge)
    Q_PROPERTY(QString gaugeText MEMBER gaugeText)
    Q_PROPERTY(QString gaugeNote MEMBER gaugeNote)
    Q_PROPERTY(QStringList gaugeParts MEMBER gaugeParts)
    Q_PROPERTY(QString problem MEMBER problem)
    Q_PROPERTY(QString age MEMBER age)
    Q_PROPERTY(QString source MEMBER source)
    Q_PROPERTY(QString credit MEMBER credit)
    Q_PROPERTY(QUrl sourceAddress MEMBER sourceAddress)
    Q_PROPERTY(QUrl address MEMBER address)
    Q_PROPERTY(QUrl join MEMBER join)
    Q_PROPERTY(bool isLoading MEMBER isLoading)

public:
    enum class State {
        waiting, ///< for the first answer
        ready,
        empty,        ///< an answer came, and there is nothing in it; `headline` says so
        disconnected, ///< it needs a key; `headline` says of what, and a press opens the accounts
        unset,   ///< the user has to pick something first; `headline` says what, and a press opens the widgets' pane
        unasked, ///< it needs the user's leave to read something; a press asks for it
        denied,  ///< the user said no; a press opens the pane of the permissions
        failed,  ///< nothing came yet, and `problem` says why
    };
    Q_ENUM(State)

    /// What it looks best as.
    enum class Form { list, curve, hours, quotes, usage, event, tasks };
    Q_ENUM(Form)

    enum class Tone { neutral, good, busy, bad };
    Q_ENUM(Tone)

    State state{};
    Form form{};
    QString headline{}; ///< a count, an amount, a temperature
    QString brief{};    ///< the same in a few characters, for the smallest card; empty: the headline is as short
    QString caption{};  ///< what that is
    QString unit{};     ///< the same in a word, for little room; empty: the caption is as short
    QString note{};     ///< more of it, where there is room; may be empty
    Tone tone{};
    QString symbol{};         ///< empty: the widget's own
    QVariantList rows{};      ///< CardRow, the most important first
    QList<qreal> curve{};     ///< from 0 to 1
    qreal curveNow{1};        ///< how far along it the present is, from 0 to 1
    qreal gauge{-1};          ///< how much of something is gone, from 0 to 1; negative: nothing is measured
    QString gaugeText{};      ///< what that is
    QString gaugeNote{};      ///< how fast it goes
    QStringList gaugeParts{}; ///< both in few characters: how much, how fast, until when
    QString problem{};        ///< why what is shown is not new
    QString age{};            ///< of what is shown, where that matters; empty: it is new
    QString source{};         ///< that has to be named beside the data; may be empty
    QString credit{};         ///< the same in a word, for beside the caption
    QUrl sourceAddress{};
    QUrl address{}; ///< of the thing itself
    QUrl join{};    ///< of its video call
    bool isLoading{};
    bool operator==(const CardContent&) const = default;

    QString stateName() const { return enumName(state); }
    QString formName() const { return enumName(form); }
    QString toneName() const { return enumName(tone); }
};

/// A line of a list, an hour of a forecast, a quote, a reminder.
struct CardRow {
    Q_GADGET
    QML_VALUE_TYPE(cardRow)
    Q_PROPERTY(QString id MEMBER id)
    Q_PROPERTY(QString title MEMBER title)
    Q_PROPERTY(QString detail MEMBER detail)
    Q_PROPERTY(QString value MEMBER value)
    Q_PROPERTY(QString symbol MEMBER symbol)
    Q_PROPERTY(QString tone READ toneName)
    Q_PROPERTY(QList<qreal> points MEMBER points)
    Q_PROPERTY(QUrl address MEMBER address)

public:
    QString id{}; ///< of a reminder that can be ticked off; empty: there is nothing to tick
    QString title{};
    QString detail{};
    QString value{}; ///< a few characters that stand at the end of the line: an age, an amount
    QString symbol{};
    CardContent::Tone tone{};
    QList<qreal> points{}; ///< from 0 to 1
    QUrl address{};
    bool operator==(const CardRow&) const = default;

    QString toneName() const { return enumName(tone); }
};

} // namespace fendrel
