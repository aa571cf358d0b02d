// The way to the desktop that both programs take.
#pragma once

#include <QApplication>
#include <memory>

namespace keplin {

// The application of the program of that name, which is also the name of its desktop entry. Without
// a display, or without the part of Qt that reaches it, says so on standard error and ends the
// program with exit code 2.
std::unique_ptr<QApplication> OpenDisplay(int& argc, char** argv, const char* program);

}  // namespace keplin
