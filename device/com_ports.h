// Which COM ports of a Windows system are ports 1 to 4.
#pragma once

#include <string>
#include <vector>

namespace keplin {

// The names of the ports, in the order of their numbers, from those that the system lists in any
// order: port n is COMn where there is one; the numbers from 1 to 4 that no COM port has go to the
// others, from COM5 on, in ascending order. An empty name where there is no such port. Behind them
// stand those that got no number. What is not named COM and a number is left out.
std::vector<std::string> ByPortNumber(const std::vector<std::string>& names);

}  // namespace keplin
