#include "UI/Settings/CalendarChooser.h"

#include "App/AppController.h"
#include "UI/Settings/FileAsking.h"
#include "UI/ShownPath.h"

#include <QFileInfo>

namespace fendrel {

CalendarChooser::CalendarChooser(AppController& controller, FileAsking& files)
    : m_controller(controller), m_files(files) {
    connect(&controller.widgets().calendar(), &WidgetFeed::changed, this, &CalendarChooser::changed);
    connect(&controller.widgets().reminders(), &WidgetFeed::changed, this, &CalendarChooser::changed);
    connect(&files, &FileAsking::changed, this, &CalendarChooser::changed);
    controller.widgets().calendar().refresh(false); // else nobody has looked yet where no card shows
}

QString CalendarChooser::chosen() const {
    return m_controller.platform().settings->read<QString>(CalendarFeed::settingKey).value_or(QString());
}

QString CalendarChooser::folder() const {
    return m_problem.isEmpty() ? shownPath(chosen()) : m_typed;
}

QString CalendarChooser::state() const {
    const CalendarStore& store = *m_controller.platform().calendar;
    QStringList folders;
    for (const QString& path : store.folders())
        folders.append(shownPath(path));
    switch (store.source()) {
    case CalendarStore::Source::system:
        return tr("Now from the desktop's calendar. A folder of iCalendar files takes its place.");
    case CalendarStore::Source::folders:
        return tr("Now from %1.").arg(folders.join(QStringLiteral(", ")));
    case CalendarStore::Source::none:
        break;
    }
    return tr("No calendar was found. Pick the folder in which a program keeps iCalendar files.");
}

bool CalendarChooser::canAsk() const {
    return m_files.isAvailable() && !m_files.isOpen();
}

void CalendarChooser::setFolder(const QString& typed) {
    const QString path = typed.trimmed().isEmpty() ? QString() : typedPath(typed);
    m_problem.clear();
    if (path.isEmpty() || QFileInfo(path).isDir()) {
        use(path);
    } else {
        m_typed = typed;
        m_problem = tr("There is no folder %1.").arg(shownPath(path));
        Q_EMIT changed();
    }
}

void CalendarChooser::ask(QQuickItem* button) {
    const FileQuestion question{.title = tr("Folder of Calendars"), .isForFolder = true, .folder = chosen()};
    m_files.open(*button, question, [this](const FileChooser::Choice& choice) {
        if (choice)
            setFolder(*choice);
    });
}

void CalendarChooser::use(const QString& path) {
    SettingsStore& settings = *m_controller.platform().settings;
    if (path.isEmpty())
        m_controller.widgets().reset({CalendarFeed::settingKey});
    else
        settings.set(CalendarFeed::settingKey, path);
    m_controller.widgets().reload();
    Q_EMIT changed();
}

} // namespace fendrel
