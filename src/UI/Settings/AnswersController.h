#pragma once

#include "UI/Settings/AnswersModel.h"

#include <QObject>
#include <QVariantList>
#include <QtQmlIntegration>

namespace fendrel {

/// The learned answers as their user sees and corrects them.
class AnswersController : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("made by the application")
    Q_PROPERTY(fendrel::AnswersModel* answers READ answers CONSTANT)
    Q_PROPERTY(int total READ total NOTIFY changed) ///< also of those that the filter leaves out
    /// What an answer can be: `modeID`, `name` and `tint` of each mode, and last of none, whose `modeID` is empty.
    Q_PROPERTY(QVariantList choices READ choices NOTIFY modesChanged)

public:
    AnswersController(AppController& controller, AppIcons& icons);

    AnswersModel* answers() { return &m_answers; }
    int total() const;
    QVariantList choices() const;

    Q_INVOKABLE void search(const QString& words);
    Q_INVOKABLE void onlyMode(int choice); ///< a position in `choices`; -1: all
    Q_INVOKABLE void onlyFrom(int source); ///< 0: Fendrel, 1: the user; -1: all
    Q_INVOKABLE void change(const QString& key, int choice);
    Q_INVOKABLE void forget(const QString& key);
    Q_INVOKABLE void askToForgetAll();

Q_SIGNALS:
    void changed();
    void modesChanged();

private:
    std::optional<QString> modeAt(int choice) const;

    AppController& m_controller;
    AnswersModel m_answers;
};

} // namespace fendrel
