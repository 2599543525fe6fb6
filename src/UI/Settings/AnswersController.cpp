#include "UI/Settings/AnswersController.h"

#include "App/AppController.h"

#include <QPointer>

namespace fendrel {

using namespace Qt::StringLiterals;

AnswersController::AnswersController(AppController& controller, AppIcons& icons)
    : m_controller(controller), m_answers(controller, icons) {
    connect(&controller.classifier(), &Classifier::answerChanged, this, &AnswersController::changed);
    connect(&controller.classifier(), &Classifier::answersReplaced, this, &AnswersController::changed);
    connect(&controller.engine(), &ModeEngine::changed, this, &AnswersController::modesChanged);
}

int AnswersController::total() const {
    return static_cast<int>(m_controller.classifier().answers().size());
}

QVariantList AnswersController::choices() const {
    QVariantList list;
    for (const Mode& mode : m_controller.engine().modes())
        list.append(QVariantMap{{u"modeID"_s, mode.id}, {u"name"_s, mode.name}, {u"tint"_s, color(mode.tint)}});
    list.append(QVariantMap{{u"modeID"_s, QString()}, {u"name"_s, tr("No mode")}, {u"tint"_s, color(Tint::graphite)}});
    return list;
}

/// Empty text: it belongs to no mode.
std::optional<QString> AnswersController::modeAt(int choice) const {
    const auto& modes = m_controller.engine().modes();
    if (choice < 0 || choice > modes.size())
        return {};
    return choice == modes.size() ? QString(u""_s) : modes[choice].id;
}

void AnswersController::search(const QString& words) {
    AnswersModel::Filter filter = m_answers.filter();
    filter.words = words.simplified().split(u' ', Qt::SkipEmptyParts);
    m_answers.show(filter);
}

void AnswersController::onlyMode(int choice) {
    AnswersModel::Filter filter = m_answers.filter();
    filter.modeID = modeAt(choice);
    m_answers.show(filter);
}

void AnswersController::onlyFrom(int source) {
    AnswersModel::Filter filter = m_answers.filter();
    filter.source = source < 0 ? std::nullopt : std::optional(source == 0 ? Source::model : Source::you);
    m_answers.show(filter);
}

void AnswersController::change(const QString& key, int choice) {
    const auto mode = modeAt(choice);
    if (!mode)
        return;
    const auto& front = m_controller.classifier().front();
    const Subject subject = front && fendrel::key(front->subject) == key ? front->subject
                            : m_answers.isApp(key) ? Subject(AppSubject{.bundleID = key, .name = m_answers.nameOf(key)})
                                                   : Subject(SiteSubject{.host = key});
    m_controller.drift().correct(subject, mode->isEmpty() ? std::nullopt : mode);
}

void AnswersController::forget(const QString& key) {
    m_controller.classifier().forget({key});
}

void AnswersController::askToForgetAll() {
    m_controller.onAlert({.message = tr("Forget all learned answers?"),
                          .informativeText = tr("Fendrel judges everything anew, and asks the language model again. "
                                                "What the modes' lists name is not touched."),
                          .buttons = {tr("Forget All"), tr("Cancel")},
                          .isGrave = true,
                          .answered = [self = QPointer(this)](int button) {
                              if (self && button == 0)
                                  self->m_controller.classifier().replaceAnswers({});
                          }});
}

} // namespace fendrel
