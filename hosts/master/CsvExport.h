#pragma once

#include "core/String.h"
#include "master/MasterStore.h"

#include <string>

namespace phial::master
{

// Results as a table that a German spreadsheet opens rightly: UTF-8 with its mark, cells divided by
// semicolons, decimal commas, lines ended by CR LF, texts in quotation marks. What pupils have typed is shown
// safely and never taken for a formula.

/// The mark and the line of titles.
std::string csvHead();
std::string csvLine(const Result& result);

/// One cell with a text. A text that a spreadsheet would work out (it begins with `=`, `+`, `-`, `@`, a tab
/// or a line end) gets an apostrophe in front.
String csvCell(StringView text);

} // namespace phial::master
