// De aanroepen met een wisselend aantal argumenten.

#include <fcntl.h>

#include <cstdarg>

#include "tests/fouten/tussen.h"

extern "C" {

int open(const char* pad, int vlaggen, ...) {
    va_list rest;
    va_start(rest, vlaggen);
    const mode_t rechten = (vlaggen & O_CREAT) != 0 ? va_arg(rest, mode_t) : 0;
    va_end(rest);
    return fouten::doeOpen("open", pad, vlaggen, rechten);
}

int open64(const char* pad, int vlaggen, ...) {
    va_list rest;
    va_start(rest, vlaggen);
    const mode_t rechten = (vlaggen & O_CREAT) != 0 ? va_arg(rest, mode_t) : 0;
    va_end(rest);
    return fouten::doeOpen("open64", pad, vlaggen, rechten);
}

}  // extern "C"
