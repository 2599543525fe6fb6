#pragma once

#include "Ports/Shell.h"
#include "Widgets/Widgets.h"

#include <QtQmlIntegration>

namespace fendrel {

/// What the weather and the ticker show: a city, and symbols. Nobody is asked before the user is done typing.
class WidgetSubjects : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("made by the application")
    Q_PROPERTY(QString city READ city NOTIFY changed)               ///< as it is to be in its field
    Q_PROPERTY(QString guessedCity READ guessedCity NOTIFY changed) ///< which shows while the user picked none
    Q_PROPERTY(QString cityProblem READ cityProblem NOTIFY changed)
    Q_PROPERTY(bool isLooking READ isLooking NOTIFY changed) ///< for the city that was typed
    Q_PROPERTY(QString symbols READ symbols NOTIFY changed)
    Q_PROPERTY(QString symbolsProblem READ symbolsProblem NOTIFY changed)

public:
    WidgetSubjects(Widgets& widgets, Shell& shell);

    QString city() const;
    QString guessedCity() const;
    QString cityProblem() const { return m_cityProblem; }
    bool isLooking() const { return m_isLooking; }
    QString symbols() const;
    QString symbolsProblem() const { return m_symbolsProblem; }

    Q_INVOKABLE void setCity(const QString& typed); ///< empty: the guessed one
    Q_INVOKABLE void setSymbols(const QString& typed);
    Q_INVOKABLE void openWeatherSource();

Q_SIGNALS:
    void changed();

private:
    void found(const QString& name, const Fetched<bool>& outcome);

    Widgets& m_widgets;
    Shell& m_shell;
    QString m_typedCity; ///< while it is looked for, and where it was not found
    QString m_cityProblem;
    bool m_isLooking = false;
    QString m_symbolsProblem;
};

} // namespace fendrel
