// Compiles the headers of Common.h; see cmake/Precompiled.cmake.
