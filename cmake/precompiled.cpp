// Nothing: a target needs a source for its headers to be precompiled.
