#pragma once

#include <QTextFormat>

namespace manual {

/// What a paragraph is, where its Markdown cannot say so.
enum class BlockRole { Plain, MessageText, MessageFacts, MessageBody };

inline constexpr int RoleProperty = QTextFormat::UserProperty + 1;
inline constexpr int KeepWithNextProperty = QTextFormat::UserProperty + 2;

inline BlockRole RoleOf(const QTextBlockFormat& format) {
  return static_cast<BlockRole>(format.intProperty(RoleProperty));
}

}  // namespace manual
