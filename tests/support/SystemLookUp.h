#pragma once

#include <dlfcn.h>
#include <netdb.h>

/// The system's look-up of names, for tests that replace `getaddrinfo`.
inline const auto systemLookUp =
    reinterpret_cast<decltype(&getaddrinfo)>(dlsym(RTLD_NEXT, "getaddrinfo"));
