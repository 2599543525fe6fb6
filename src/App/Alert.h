#pragma once

#include <QString>
#include <QStringList>

#include <functional>

namespace fendrel {

/// A question or notice that the user has to answer.
struct Alert {
    QString message{};
    QString informativeText{};
    QStringList buttons{}; ///< the first is the default
    bool isGrave{false};   ///< the first loses something, so the keyboard is at the last
    std::function<void(int button)> answered = [](int) {}; ///< the position of the button; the last one on Escape
};

} // namespace fendrel
