#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "layout/font_metrics.h"

namespace vireo {

// The metrics file of vireo-tool and the benchmarks: four lines of 255
// numbers each (plain, bold, italic, bold-italic); the n-th number is the
// width of character code n. Numbers are separated by blanks, tabs or commas;
// empty lines are ignored. The entry of code 10 is read but a line feed keeps
// width 0.

// The tables of content, or nothing with a one-line reason in error.
std::optional<clsFontMetrics> ParseMetricsFile(std::string_view content, std::string& error);

// The tables of metrics in the same form, numbers written exactly
// (shortest round-trip form).
std::string FormatMetricsFile(const clsFontMetrics& metrics);

}  // namespace vireo
