#pragma once

#include <QString>
#include <QTextBoundaryFinder>

/// What other programs and pages wrote, made ready for a question to a language model.
namespace fendrel::promptText {

/// The first characters as a person counts them; one may take several code units.
inline QString first(const QString& text, int count) {
    QTextBoundaryFinder finder(QTextBoundaryFinder::Grapheme, text);
    for (int passed = 0; passed < count; ++passed) {
        if (finder.toNextBoundary() < 0)
            return text;
    }
    return text.left(finder.position());
}

/// On one line: what stands on a line of its own in a prompt is not to begin another that looks like one of ours.
inline QString line(QString text) {
    for (QChar& unit : text) {
        if (unit == u'\n' || unit == u'\r' || unit == u'\v' || unit == u'\f' || unit == QChar::LineSeparator ||
            unit == QChar::ParagraphSeparator || unit == QChar(0x85))
            unit = u' ';
    }
    return text;
}

} // namespace fendrel::promptText
