#pragma once

#include <QString>

namespace manual {

/// The Markdown text of the manual: the files of a folder in the order of their names, each of
/// which begins a chapter. Throws std::runtime_error when there is none, or a file cannot be read.
QString ReadChapters(const QString& folder);

}  // namespace manual
