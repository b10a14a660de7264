#pragma once

#include <vector>

namespace horavex {

/// The widths of a table's columns, which fill its width: by their shares of it, but a column that
/// needs more has what it needs, and the others share the rest. Where there is not room for all,
/// each has the same part of its need. needs: 0 or more, in the unit of the width; shares: above 0,
/// as many.
std::vector<double> ColumnWidths(const std::vector<double>& needs,
                                 const std::vector<double>& shares, double width);

}  // namespace horavex
