#pragma once

#include "Focus/Judgement.h"

#include <QColor>
#include <QObject>
#include <QString>
#include <QtQmlIntegration>

#include <optional>

namespace fendrel {

class AppController;

/// The judgement of what is in front, and the user's correction of it.
class VerdictController : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("made by the application")
    Q_PROPERTY(bool isShown READ isShown NOTIFY changed)
    Q_PROPERTY(bool isClassifying READ isClassifying NOTIFY changed)
    Q_PROPERTY(QString what READ what NOTIFY changed)
    Q_PROPERTY(QString modeID READ modeID NOTIFY changed)
    Q_PROPERTY(QString modeName READ modeName NOTIFY changed)
    Q_PROPERTY(QColor tint READ tint NOTIFY changed)
    Q_PROPERTY(bool isElsewhere READ isElsewhere NOTIFY changed)
    Q_PROPERTY(bool isCertain READ isCertain NOTIFY changed)
    Q_PROPERTY(QString certainty READ certainty NOTIFY changed)

public:
    explicit VerdictController(AppController& controller);

    bool isShown() const;
    bool isClassifying() const;
    QString what() const;     ///< the name of what is in front while nobody knows more
    QString modeID() const;   ///< empty when it belongs to no mode
    QString modeName() const; ///< empty when it belongs to no mode
    QColor tint() const;
    bool isElsewhere() const; ///< it belongs to a mode other than the current one
    bool isCertain() const;
    QString certainty() const; ///< how sure the language model is; empty when it was not asked

    Q_INVOKABLE void holdSubject();                  ///< what `correct` is going to be about
    Q_INVOKABLE void correct(const QString& modeID); ///< empty: it belongs to no mode

Q_SIGNALS:
    void changed();

private:
    void schedule();

    AppController& m_controller;
    bool m_isDue = false;
    std::optional<Subject> m_held; ///< something else may come to the front while the menu is open
};

} // namespace fendrel
