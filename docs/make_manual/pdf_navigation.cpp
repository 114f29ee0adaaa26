#include "pdf_navigation.h"

#include <algorithm>
#include <stdexcept>

#include <QMap>
#include <QRegularExpression>

namespace manual {
namespace {

[[noreturn]] void Refuse(const char* what) {
  throw std::runtime_error(std::string("the PDF file is not as expected: ") + what);
}

QByteArray Reference(int object) {
  return QByteArray::number(object) + " 0 R";
}

QByteArray TextString(const QString& text) {
  QByteArray string("<FEFF");
  for (const QChar letter : text)
    string += QByteArray::number(letter.unicode(), 16).rightJustified(4, '0').toUpper();
  return string + '>';
}

/// The pages, catalogue and next free object number of a PDF file, read from its plain parts.
class PdfStructure {
 public:
  explicit PdfStructure(const QByteArray& pdf) : text_(QString::fromLatin1(pdf)) {
    static const QRegularExpression page(
        QStringLiteral("\n(\\d+) 0 obj\n<<\n/Type /Page\n[^>]*?/Annots (\\d+) 0 R"));
    for (auto found = page.globalMatch(text_); found.hasNext();) {
      const QRegularExpressionMatch match = found.next();
      pages.append(match.captured(1).toInt());
      linkLists.append(match.captured(2).toInt());
    }
    if (pages.isEmpty()) Refuse("no pages");
    info = Number(QStringLiteral("/Info (\\d+) 0 R"));
    catalogue = Number(QStringLiteral("/Root (\\d+) 0 R"));
    pageTree = Number(QStringLiteral("/Type /Catalog\n/Pages (\\d+) 0 R"));
    objectCount = Number(QStringLiteral("trailer\n<<\n/Size (\\d+)"));
    crossReferences = Number(QStringLiteral("startxref\n(\\d+)"));
  }

  QList<int> pages;
  QList<int> linkLists;  // of each page
  int info = 0;
  int catalogue = 0;
  int pageTree = 0;
  int objectCount = 0;
  int crossReferences = 0;

 private:
  int Number(const QString& pattern) const {
    const QRegularExpressionMatch match = QRegularExpression(pattern).match(text_);
    if (!match.hasMatch()) Refuse(qPrintable(pattern));
    return match.captured(1).toInt();
  }

  QString text_;
};

/// Objects that are put behind a file, some in the place of objects that it has already.
class PdfUpdate {
 public:
  explicit PdfUpdate(const PdfStructure& structure)
      : structure_(structure), nextObject_(structure.objectCount) {}

  QByteArray Destination(const PdfPlace& place) const {
    return "[" + Reference(structure_.pages.at(place.page)) + " /XYZ 0 " +
           QByteArray::number(place.y, 'f', 1) + " null]";
  }

  void Replace(int object, const QByteArray& content) { objects_[object] = content; }

  int Add(const QByteArray& content) {
    objects_[nextObject_] = content;
    return nextObject_++;
  }

  int NextObject() const { return nextObject_; }

  void AppendTo(QByteArray& pdf) const {
    QMap<int, qsizetype> positions;
    for (auto object = objects_.begin(); object != objects_.end(); ++object) {
      positions[object.key()] = pdf.size();
      pdf += QByteArray::number(object.key()) + " 0 obj\n" + object.value() + "\nendobj\n";
    }
    const qsizetype table = pdf.size();
    pdf += "xref\n";
    for (auto at = positions.begin(); at != positions.end(); ++at) {
      pdf += QByteArray::number(at.key()) + " 1\n" +
             QByteArray::number(at.value()).rightJustified(10, '0') + " 00000 n \n";
    }
    pdf += "trailer\n<<\n/Size " + QByteArray::number(nextObject_) + "\n/Info " +
           Reference(structure_.info) + "\n/Root " + Reference(structure_.catalogue) + "\n/Prev " +
           QByteArray::number(structure_.crossReferences) + "\n>>\nstartxref\n" +
           QByteArray::number(table) + "\n%%EOF\n";
  }

 private:
  const PdfStructure& structure_;
  int nextObject_;
  QMap<int, QByteArray> objects_;
};

/// The objects of an outline: its root, then its entries in their order.
class Outline {
 public:
  Outline(PdfUpdate& update, const QList<OutlineEntry>& entries)
      : update_(update), entries_(entries), root_(update.NextObject()) {}

  /// Adds the objects and gives the number of the root.
  int Write() {
    update_.Add("<<\n/Type /Outlines" + Children(-1) + "\n>>");
    for (qsizetype index = 0; index < entries_.size(); ++index)
      update_.Add(Entry(index));
    return root_;
  }

 private:
  int LevelOf(qsizetype index) const { return index < 0 ? 0 : entries_.at(index).level; }
  QByteArray ObjectOf(qsizetype index) const {
    return Reference(root_ + 1 + static_cast<int>(index));
  }

  /// The entries one level below an entry, up to the next entry of its own level.
  QList<qsizetype> ChildrenOf(qsizetype parent) const {
    QList<qsizetype> children;
    for (qsizetype index = parent + 1; index < entries_.size(); ++index) {
      if (LevelOf(index) <= LevelOf(parent)) break;
      if (LevelOf(index) == LevelOf(parent) + 1) children.append(index);
    }
    return children;
  }

  /// Sections are folded until the reader opens their chapter.
  QByteArray Children(qsizetype parent) const {
    const QList<qsizetype> children = ChildrenOf(parent);
    if (children.isEmpty()) return {};
    const qsizetype count = parent < 0 ? children.size() : -children.size();
    return "\n/First " + ObjectOf(children.first()) + "\n/Last " + ObjectOf(children.last()) +
           "\n/Count " + QByteArray::number(count);
  }

  qsizetype ParentOf(qsizetype index) const {
    qsizetype parent = index - 1;
    while (parent >= 0 && LevelOf(parent) >= LevelOf(index))
      --parent;
    return parent;
  }

  QByteArray Entry(qsizetype index) const {
    const OutlineEntry& entry = entries_.at(index);
    const qsizetype parent = ParentOf(index);
    const QList<qsizetype> siblings = ChildrenOf(parent);
    const qsizetype place = siblings.indexOf(index);
    QByteArray object = "<<\n/Title " + TextString(entry.title);
    object += "\n/Parent " + (parent < 0 ? Reference(root_) : ObjectOf(parent));
    if (place > 0) object += "\n/Prev " + ObjectOf(siblings.at(place - 1));
    if (place + 1 < siblings.size()) object += "\n/Next " + ObjectOf(siblings.at(place + 1));
    object += Children(index);
    return object + "\n/Dest " + update_.Destination(entry.target) + "\n>>";
  }

  PdfUpdate& update_;
  const QList<OutlineEntry>& entries_;
  int root_;
};

void AddLinks(PdfUpdate& update, const PdfStructure& structure, const QList<PdfLink>& links) {
  QMap<int, QByteArray> lists;
  for (const PdfLink& link : links) {
    QByteArray area;
    for (const double side :
         {link.area.left(), link.area.top(), link.area.right(), link.area.bottom()}) {
      area += QByteArray::number(side, 'f', 1) + ' ';
    }
    const int object = update.Add("<<\n/Type /Annot\n/Subtype /Link\n/Border [0 0 0]\n/Rect [" +
                                  area + "]\n/Dest " + update.Destination(link.target) + "\n>>");
    lists[link.page] += Reference(object) + ' ';
  }
  for (auto list = lists.begin(); list != lists.end(); ++list)
    update.Replace(structure.linkLists.at(list.key()), "[" + list.value() + "]");
}

/// Blanks the date of making, which would make every file another.
void RemoveDate(QByteArray& pdf) {
  const qsizetype start = pdf.indexOf("/CreationDate (");
  const qsizetype end = start < 0 ? -1 : pdf.indexOf(')', start);
  if (end < 0) Refuse("no date");
  std::fill(pdf.begin() + start, pdf.begin() + end + 1, ' ');
}

}  // namespace

QByteArray AddNavigation(QByteArray pdf, const PdfFacts& facts, const QList<OutlineEntry>& outline,
                         const QList<PdfLink>& links) {
  RemoveDate(pdf);
  const PdfStructure structure(pdf);
  PdfUpdate update(structure);
  const int outlineRoot = Outline(update, outline).Write();
  AddLinks(update, structure, links);
  update.Replace(structure.info, "<<\n/Title " + TextString(facts.title) + "\n/Author " +
                                     TextString(facts.author) + "\n>>");
  update.Replace(structure.catalogue, "<<\n/Type /Catalog\n/Pages " +
                                          Reference(structure.pageTree) + "\n/Outlines " +
                                          Reference(outlineRoot) +
                                          "\n/PageMode /UseOutlines\n/Lang (en-GB)\n"
                                          "/ViewerPreferences << /DisplayDocTitle true >>\n>>");
  update.AppendTo(pdf);
  return pdf;
}

}  // namespace manual
