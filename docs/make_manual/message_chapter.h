#pragma once

#include <QTextDocument>

namespace manual {

/// Puts the explanation of every message in the place of the paragraph "{{messages}}", a section
/// per family. Throws std::runtime_error when there is no such paragraph, or when a family has no
/// title.
void InsertMessageChapter(QTextDocument& document);

}  // namespace manual
