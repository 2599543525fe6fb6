// Nothing: this file makes the precompiled headers, which the other targets use.
