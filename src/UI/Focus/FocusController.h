#pragma once

#include "UI/Countdown.h"

#include <QObject>
#include <QString>
#include <QVariantList>
#include <QtQmlIntegration>

namespace fendrel {

class AppController;

/// The focus session, the pending switch and the drift allowance, as the views show them.
class FocusController : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("made by the application")
    Q_PROPERTY(bool isOn READ isOn NOTIFY changed)
    Q_PROPERTY(QString remaining READ remaining NOTIFY changed)
    Q_PROPERTY(QString endTime READ endTime NOTIFY changed)
    Q_PROPERTY(double hourShare READ hourShare NOTIFY changed)
    Q_PROPERTY(QVariantList ends READ ends NOTIFY endsChanged)
    Q_PROPERTY(int pendingSeconds READ pendingSeconds NOTIFY pendingChanged)
    Q_PROPERTY(bool hasBudget READ hasBudget NOTIFY budgetChanged)
    Q_PROPERTY(double budgetLeft READ budgetLeft NOTIFY budgetChanged)
    Q_PROPERTY(QString budgetText READ budgetText NOTIFY budgetChanged)
    Q_PROPERTY(QString driftText READ driftText NOTIFY budgetChanged)

public:
    explicit FocusController(AppController& controller);

    bool isOn() const;
    QString remaining() const; ///< empty for an open-ended session
    QString endTime() const;   ///< by the clock; empty for an open-ended session
    /// What is left, as a share of an hour's dial: 1 for an hour and more, and for an open-ended session.
    double hourShare() const;
    QVariantList ends() const;  ///< full and half hours that a session could last until: { text, value }
    int pendingSeconds() const; ///< 0 when no switch is pending
    bool hasBudget() const;     ///< whether the current mode has an allowance
    double budgetLeft() const;  ///< share of it that is left, 0 to 1
    QString budgetText() const;
    QString driftText() const; ///< how much of today's is used

    Q_INVOKABLE void start(int minutes);     ///< 0: open-ended
    Q_INVOKABLE void startUntil(double end); ///< a value of `ends`; nothing happens once it has passed
    Q_INVOKABLE void stop();

Q_SIGNALS:
    void changed();
    void endsChanged();
    void pendingChanged();
    void budgetChanged();

private:
    void scheduleEnds();

    AppController& m_controller;
    Handle m_nextEnd;
    Handle m_wallClockWatch;
    Countdown m_session;
    Countdown m_pending;
};

} // namespace fendrel
