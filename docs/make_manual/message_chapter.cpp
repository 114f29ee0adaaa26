#include "message_chapter.h"

#include <array>
#include <stdexcept>
#include <string_view>

#include <QRegularExpression>
#include <QTextBlock>
#include <QTextCursor>

#include "block_role.h"
#include "run/message_catalogue.h"

namespace manual {
namespace {

using quorvane::MessageDefinition;
using quorvane::MessageForm;
using quorvane::Severity;

/// The messages whose ids begin with one word, and where the reader meets them.
struct Family {
  std::string_view name;
  const char* title;
  const char* place;
};

constexpr std::array Families{
    Family{"intake", "Reading the file",
           "In the sections File Name Check, Row Label Check, Low/high bit ASCII characters and "
           "Scanning Line Lengths."},
    Family{"field", "Fields and their quotes", "In the section Parsing Structure and Data."},
    Family{"structure", "Lines of a group", "In the section Parsing Structure and Data."},
    Family{"lookup", "Groups that explain codes",
           "In the sections Abbreviations check, File codes check, Units check, Contaminant Codes "
           "Check and TYPE check."},
    Family{"names", "Names of groups and headings",
           "In the sections Parsing Structure and Data and Checking Field Order."},
    Family{"required", "Required groups, fields and records",
           "In the sections Checking Required Groups, Checking Required Fields, Checking PROJ "
           "Group, Checking TRAN Group and Parsing Structure and Data."},
    Family{"keys", "Keys and parent groups",
           "In the sections Parsing Structure and Data, Parent keys check and Duplicated keys "
           "check."},
    Family{"dict-group", "Groups and headings of the file\u2019s own",
           "In the section Check of the DICT group."},
    Family{"abbreviations", "Abbreviations", "In the section Abbreviations check."},
    Family{"file-sets", "Associated files", "In the section File codes check."},
    Family{"units", "Units", "In the section Units check."},
    Family{"contaminant-codes", "Contaminant codes", "In the section Contaminant Codes Check."},
    Family{"types", "Data types and values", "In the section TYPE check."},
};

QString ToText(std::string_view text) {
  return QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
}

const Family& FamilyOf(const MessageDefinition& message) {
  const std::string_view name = message.id.substr(0, message.id.find('.'));
  for (const Family& family : Families) {
    if (family.name == name) return family;
  }
  throw std::runtime_error("the messages named " + std::string(name) + " have no title");
}

/// A message as it is read, with a mark where it has a value of the file.
QString Readable(std::string_view form) {
  static const QRegularExpression place(QStringLiteral("\\{[0-9]+\\}"));
  QString text = ToText(form).trimmed();
  text.replace(QStringLiteral("\r\n"), QString(QChar::LineSeparator));
  const QString mark = QStringLiteral("\u2039\u2026\u203a");
  text.replace(place, mark);
  const bool saysNothing = text == mark;
  return saysNothing ? QStringLiteral("(the lines concerned, one by one)") : text;
}

QString Label(Severity severity) {
  switch (severity) {
    case Severity::Error:
      return QStringLiteral("ERROR");
    case Severity::Warning:
      return QStringLiteral("WARNING");
    case Severity::Fyi:
      return QStringLiteral("FYI");
    case Severity::Plain:
      break;
  }
  return QStringLiteral("remark without a label");
}

QString RuleOf(const MessageForm& form) {
  return form.rule.empty() ? QString() : QStringLiteral("Rule ") + ToText(form.rule);
}

/// A version with the rule of the format that a message serves in it.
QString InVersion(const QString& version, const MessageForm& form) {
  const QString rule = RuleOf(form);
  return rule.isEmpty() ? version : version + QStringLiteral(" (") + rule + u')';
}

/// Stands between two facts of a message.
const QString Separator = QStringLiteral("  \u00b7  ");

QString Facts(const MessageForm& form, const QString& versions) {
  return Label(form.severity) + Separator + versions;
}

/// The facts of a message that reads the same in both versions.
QString SharedFacts(const MessageForm& ags3, const MessageForm& ags4) {
  if (ags3.rule == ags4.rule) {
    return Facts(ags3, InVersion(QStringLiteral("AGS 3 and AGS 4"), ags3));
  }
  return Facts(ags3, InVersion(QStringLiteral("AGS 3"), ags3) + QStringLiteral(" and ") +
                         InVersion(QStringLiteral("AGS 4"), ags4));
}

bool ReadAlike(const MessageForm& one, const MessageForm& other) {
  return one.severity == other.severity && one.text == other.text;
}

class ChapterWriter {
 public:
  explicit ChapterWriter(const QTextCursor& cursor) : cursor_(cursor) {}

  void Write() {
    const Family* family = nullptr;
    for (const MessageDefinition* message : quorvane::MessageCatalogue()) {
      if (const Family& own = FamilyOf(*message); &own != family) {
        family = &own;
        WriteHeading(own);
      }
      WriteMessage(*message);
    }
  }

 private:
  void StartBlock(const QTextBlockFormat& format) {
    if (!isFirst_) cursor_.insertBlock();
    isFirst_ = false;
    cursor_.setBlockFormat(format);
    cursor_.setCharFormat({});
    cursor_.setBlockCharFormat({});
  }

  void WriteHeading(const Family& family) {
    QTextBlockFormat format;
    format.setHeadingLevel(2);
    StartBlock(format);
    cursor_.insertText(QString::fromUtf8(family.title));
    QTextBlockFormat placeFormat;
    placeFormat.setProperty(KeepWithNextProperty, true);
    StartBlock(placeFormat);
    cursor_.insertText(QString::fromUtf8(family.place));
  }

  void WriteBlock(BlockRole role, const QString& text) {
    QTextBlockFormat format;
    format.setProperty(RoleProperty, static_cast<int>(role));
    StartBlock(format);
    cursor_.insertText(text, {});
  }

  void WriteForm(const MessageForm& form, const QString& facts, std::string_view id) {
    WriteBlock(BlockRole::MessageText, Readable(form.text));
    WriteBlock(BlockRole::MessageFacts, facts + Separator + ToText(id));
  }

  void WriteFormOf(const MessageForm& form, const QString& version, std::string_view id) {
    if (form.Exists()) WriteForm(form, Facts(form, InVersion(version, form)), id);
  }

  void WriteMessage(const MessageDefinition& message) {
    if (ReadAlike(message.ags3, message.ags4)) {
      WriteForm(message.ags3, SharedFacts(message.ags3, message.ags4), message.id);
    } else {
      WriteFormOf(message.ags3, QStringLiteral("AGS 3"), message.id);
      WriteFormOf(message.ags4, QStringLiteral("AGS 4"), message.id);
    }
    WriteBlock(BlockRole::MessageBody, ToText(message.meaning));
    QTextCharFormat label;
    label.setFontItalic(true);
    cursor_.insertText(QString(QChar::LineSeparator) + QStringLiteral("What to do: "), label);
    cursor_.insertText(ToText(message.remedy), {});
  }

  QTextCursor cursor_;
  bool isFirst_ = true;
};

}  // namespace

void InsertMessageChapter(QTextDocument& document) {
  QTextCursor place = document.find(QStringLiteral("{{messages}}"));
  if (place.isNull()) throw std::runtime_error("the text has no place for the messages");
  place.removeSelectedText();
  ChapterWriter(place).Write();
}

}  // namespace manual
