#pragma once

#include "app/acctl/Preflight.h"
#include "app/acctl/Printer.h"

// The commands that fill and print profile files. Those that fill one return the exit code.

/// Searches the network, and adds what was found to a profile file if the arguments name one.
/// `password` is tried where one is required.
int Find(const Arguments& arguments, const std::string& password);
int Import(const Arguments& arguments);
void Export(const Projectors& projectors, Printer& printer);
