globalThis.fendrel ??= {};

// This document is of a site that is veiled in some tab: better covered for a moment too many than seen for one.
fendrel.coversFirst = true;
