#pragma once

#include <string>
#include <vector>

/// Text of the whole system: UTF-8.
using CString = std::string;

/// A growing array. The second argument, the type by which elements are passed, is kept for callers that name it.
template <class T, class Argument = const T&> using CArray = std::vector<T>;
