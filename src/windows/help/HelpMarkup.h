// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <string_view>
#include <variant>
#include <vector>

/// A topic's body, the small markup that scripts/compile_help.py allows, as paragraphs and tables.
namespace dayvane::help {

/// Letters of one kind, or a picture in their midst.
struct Piece {
  std::string text;  ///< UTF-8, blanks drawn together; a line feed breaks the line. Of a picture, what stands for it
  bool isBold = false;
  bool isItalic = false;
  std::string link;     ///< name of the topic that it leads to; empty where it is none
  std::string picture;  ///< name in the help file; empty for letters
  int width = 0;        ///< of a picture, pixels at 96 dots per inch
  int height = 0;
};

enum class ParagraphKind { Text, Title, Heading, Quote, SeeAlso, Item };

struct Paragraph {
  ParagraphKind kind = ParagraphKind::Text;
  int depth = 0;       ///< of an item, 1 for the outermost list
  std::string bullet;  ///< of an item: "•", "2."; empty for its further paragraphs
  std::vector<Piece> pieces;
};

struct Cell {
  bool isHeading = false;
  std::vector<Paragraph> paragraphs;
};

enum class TableKind { Grid, Tip, Cards };

struct Table {
  TableKind kind = TableKind::Grid;
  std::vector<std::vector<Cell>> rows;  ///< no row is empty; they may differ in length
};

using Block = std::variant<Paragraph, Table>;

/// Never fails: elements that are not known are taken for their content, a table within a table and cells beyond
/// kMostCells of a row for further paragraphs, and what breaks off ends there. Of a body that nobody could read to its
/// end only the beginning is taken.
std::vector<Block> ReadMarkup(std::string_view body);

inline constexpr int kMostCells = 16;
inline constexpr int kDeepestList = 6;
inline constexpr std::size_t kLongestBody = 100'000;  ///< bytes; ours have some 5000

}  // namespace dayvane::help
