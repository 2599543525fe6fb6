#pragma once

#include "Base/FileDescriptor.h"

namespace fendrel::relay {

/// Takes the standard output for the messages to the browser. Whatever else is printed there from now on goes to the
/// standard error, so that it cannot break the stream. Nothing when there is no standard output.
FileDescriptor takeStandardOutput();

} // namespace fendrel::relay
