#pragma once

#include <QColor>
#include <QObject>
#include <QString>
#include <QtQmlIntegration>

namespace fendrel {

class AppController;

/// The offer to take an edit back, as its card shows it. What the card said stays while it goes.
class UndoController : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("made by the application")
    Q_PROPERTY(bool isOffered READ isOffered NOTIFY changed)
    Q_PROPERTY(QString text MEMBER m_text NOTIFY changed)
    Q_PROPERTY(QColor tint MEMBER m_tint NOTIFY changed)

public:
    explicit UndoController(AppController& controller);

    bool isOffered() const;
    Q_INVOKABLE void undo();
    Q_INVOKABLE void dismiss();
    Q_INVOKABLE void setHovered(bool isHovered);

Q_SIGNALS:
    void changed();

private:
    void update();

    AppController& m_controller;
    QString m_text;
    QColor m_tint;
};

} // namespace fendrel
