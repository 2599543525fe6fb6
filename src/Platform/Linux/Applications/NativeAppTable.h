#pragma once

#include "Ports/Applications.h"

namespace fendrel {

/// The built-in list of this system's applications that suit each template, installed or not.
NativeApps nativeAppTable();

} // namespace fendrel
