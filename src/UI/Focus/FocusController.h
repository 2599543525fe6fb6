#pragma once

#include "UI/Countdown.h"

#include <QObject>
#include <QString>
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
    Q_PROPERTY(int pendingSeconds READ pendingSeconds NOTIFY pendingChanged)
    Q_PROPERTY(bool hasBudget READ hasBudget NOTIFY budgetChanged)
    Q_PROPERTY(double budgetLeft READ budgetLeft NOTIFY budgetChanged)
    Q_PROPERTY(QString budgetText READ budgetText NOTIFY budgetChanged)

public:
    explicit FocusController(AppController& controller);

    bool isOn() const;
    QString remaining() const;  ///< empty for an open-ended session
    int pendingSeconds() const; ///< 0 when no switch is pending
    bool hasBudget() const;     ///< whether the current mode has an allowance
    double budgetLeft() const;  ///< share of it that is left, 0 to 1
    QString budgetText() const;

    Q_INVOKABLE void start(int minutes); ///< 0: open-ended
    Q_INVOKABLE void stop();

Q_SIGNALS:
    void changed();
    void pendingChanged();
    void budgetChanged();

private:
    AppController& m_controller;
    Countdown m_session;
    Countdown m_pending;
};

} // namespace fendrel
