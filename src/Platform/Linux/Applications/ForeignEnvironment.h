#pragma once

#include <QProcessEnvironment>

namespace fendrel {

/// The environment for programs that are not part of us: the one that we were started with. What we set for our own
/// toolkit since then would make other applications draw in our way too.
QProcessEnvironment foreignEnvironment();

} // namespace fendrel
