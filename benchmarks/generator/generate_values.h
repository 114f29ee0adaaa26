#pragma once

#include <string>
#include <string_view>

#include "generate_lists.h"
#include "generate_random.h"
#include "generate_site.h"

namespace quorvane::generate {

/// Values as they stand in a file; each routine appends to the text.

void AppendWhole(std::string& text, int value);

/// The value in units of its last decimal: 125 with two decimals is "1.25".
void AppendFixed(std::string& text, int value, int decimals);

/// A time of a day (days from 1 January 1970, minutes from midnight) in a pattern of yyyy, mm, dd,
/// hh, mm and ss; every other character stands for itself.
void AppendMoment(std::string& text, std::string_view pattern, int day, int minute);

/// Degrees, minutes and seconds.
void AppendAngle(std::string& text, int degrees, Random& random);

/// The description of a soil in one to some ten clauses.
void AppendDescription(std::string& text, Random& random);

void AppendWords(std::string& text, ListId list, Random& random);

/// The identifier that a sample has within the whole file.
void AppendSampleId(std::string& text, const Location& location, const Sample& sample);

/// A record link to the sample before this one or to the location, or to both.
void AppendLink(std::string& text, const Site& site, const Location& location, const Sample& sample,
                Random& random);

/// Name of the set of associated files of a location; several locations share one.
void AppendFileSet(std::string& text, const Location& location);

/// Whether the location is the first of those that share its file set.
bool OpensFileSet(const Location& location);

}  // namespace quorvane::generate
