#include "Widgets/Services/GitHub.h"

#include <cstdio>

/// Prints what GitHub is asked, for the check against its schema.
int main() {
    std::fputs(fendrel::github::snapshotRequest({}).body.constData(), stdout);
}
