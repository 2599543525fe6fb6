#include "UI/Settings/FileAsking.h"

#include <QQuickWindow>

#include <utility>

namespace fendrel {

FileAsking::FileAsking(FileChooser& chooser) : m_chooser(chooser) {
    m_chooser.onChanged = [this] { Q_EMIT changed(); };
}

FileAsking::~FileAsking() {
    m_chooser.onChanged = [] {};
}

void FileAsking::open(const QQuickItem& asker, const FileQuestion& question, FileChooser::Done done) {
    ask(&FileChooser::open, asker, question, std::move(done));
}

void FileAsking::save(const QQuickItem& asker, const FileQuestion& question, FileChooser::Done done) {
    ask(&FileChooser::save, asker, question, std::move(done));
}

void FileAsking::ask(Ask how, const QQuickItem& asker, FileQuestion question, FileChooser::Done done) {
    if (m_isOpen)
        return;
    if (!isAvailable()) {
        done(FileChooser::Choice::failure(FileChooser::NoFile::failed));
        return;
    }
    const QQuickWindow* window = asker.window();
    if (window) {
        question.window = window->winId();
        m_closing = connect(window, &QObject::destroyed, this, [this] {
            m_question.reset();
            setOpen(false);
        });
    }
    setOpen(true);
    m_question = (m_chooser.*how)(question, [this, done = std::move(done)](const FileChooser::Choice& choice) {
        setOpen(false);
        done(choice);
    });
}

void FileAsking::setOpen(bool isOpen) {
    if (!isOpen)
        disconnect(m_closing);
    if (std::exchange(m_isOpen, isOpen) != isOpen)
        Q_EMIT changed();
}

} // namespace fendrel
