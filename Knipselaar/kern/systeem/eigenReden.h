#pragma once

// Alleen voor reden.cpp: wat elk systeem anders doet.

#include <string>
#include <system_error>

namespace kern {

/// Dezelfde fout zoals de C-bibliotheek haar noemt, als een code van std::generic_category. Kent zij er geen
/// naam voor, dan blijft de fout wat zij is.
std::error_code maakAlgemeen(const std::error_code& fout);

/// De reden bij een fout waar maakAlgemeen niets algemeners voor heeft, of die noemReden niet kent.
std::string noemEigenReden(const std::error_code& fout);

}  // namespace kern
