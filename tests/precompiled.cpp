// Holds nothing: the build makes the precompiled header for this file, and the tests take it.
