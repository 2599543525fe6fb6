#pragma once

#include "App/Alert.h"

#include <QObject>
#include <QtQmlIntegration>

namespace fendrel {

/// One alert on screen.
class AlertController : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("made by the application")
    Q_PROPERTY(QString message READ message CONSTANT)
    Q_PROPERTY(QString informativeText READ informativeText CONSTANT)
    Q_PROPERTY(QStringList buttons READ buttons CONSTANT)
    Q_PROPERTY(bool isGrave READ isGrave CONSTANT)
    Q_PROPERTY(bool isDark MEMBER m_isDark CONSTANT)

public:
    AlertController(Alert alert, bool isDark) : m_alert(std::move(alert)), m_isDark(isDark) {}

    const QString& message() const { return m_alert.message; }
    const QString& informativeText() const { return m_alert.informativeText; }
    const QStringList& buttons() const { return m_alert.buttons; }
    bool isGrave() const { return m_alert.isGrave; }

    Q_INVOKABLE void answer(int button) {
        // Taken first, so that closing the window is no second answer.
        if (const auto answered = std::exchange(m_alert.answered, {}))
            answered(button);
        Q_EMIT done();
    }
    Q_INVOKABLE void cancel() { answer(static_cast<int>(m_alert.buttons.size()) - 1); }

Q_SIGNALS:
    void done();

private:
    Alert m_alert;
    bool m_isDark;
};

} // namespace fendrel
