#pragma once

#include "UI/Modes/WidgetsModel.h"
#include "UI/Settings/CalendarChooser.h"
#include "UI/Settings/WidgetSubjects.h"

#include <memory>
#include <vector>

namespace fendrel {

class AppController;
class FileAsking;

/// The catalogue of widgets, and which modes have them. Those of the current mode can be chosen.
class WidgetsController : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("made by the application")
    Q_PROPERTY(QVariantList groups READ groups CONSTANT) ///< WidgetsModel
    Q_PROPERTY(int found READ found NOTIFY changed)      ///< in all of them
    Q_PROPERTY(QString modeName READ modeName NOTIFY changed)
    Q_PROPERTY(QColor modeTint READ modeTint NOTIFY changed)
    Q_PROPERTY(fendrel::WidgetSubjects* subjects READ subjects CONSTANT)
    Q_PROPERTY(fendrel::CalendarChooser* calendar READ calendar CONSTANT)

public:
    WidgetsController(AppController& controller, FileAsking& files);

    QVariantList groups() const;
    int found() const;
    QString modeName() const;
    QColor modeTint() const;
    WidgetSubjects* subjects() { return &m_subjects; }
    CalendarChooser* calendar() { return &m_calendar; }

    Q_INVOKABLE void search(const QString& words); ///< all of them are in what is shown
    Q_INVOKABLE void choose(const QString& widgetID, bool on);
    Q_INVOKABLE void setSize(const QString& widgetID, const QString& size); ///< in the current mode

Q_SIGNALS:
    void changed();

private:
    void refresh();
    void complete(WidgetsModel::Row& row) const;

    AppController& m_controller;
    std::vector<std::unique_ptr<WidgetsModel>> m_groups;
    QString m_words;
    WidgetSubjects m_subjects;
    CalendarChooser m_calendar;
};

} // namespace fendrel
