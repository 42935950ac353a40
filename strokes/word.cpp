#include "strokes/word.h"

#include <algorithm>
#include <span>
#include <utility>

#include "strokes/utf8.h"
#include "strokes/word_ink.h"

namespace bramlee {

/// What a text is laid from: a letter with its signs, a blank, or a character that is left out.
struct WordPiece {
  Cluster cluster{};
  std::string text{};
  bool blank = false;
};

namespace {

using Piece = WordPiece;

/// The room of a blank: half a letter, as one leaves between words in writing.
constexpr double kBlank = 75;

/// Two reaches of a head line that come so near are one.
constexpr double kSameLine = 1;

constexpr bool IsBlank(char32_t code) {
  return code == U' ' || (code >= U'\t' && code <= U'\r') || code == 0xA0 ||
         (code >= 0x2000 && code <= 0x200A) || code == 0x3000;
}

Cluster ReadLetter(std::span<const TextCharacter> text) {
  for (const auto read : {ReadLatin, ReadHindi, ReadTelugu}) {
    Cluster cluster = read(text);
    if (cluster.characters > 0) return cluster;
  }
  Cluster none{.characters = 1};
  if (!IsJoiner(text.front().code)) none.leftOut.push_back(text.front());
  return none;
}

Piece ReadPiece(std::span<const TextCharacter> text) {
  const bool blank = IsBlank(text.front().code);
  Piece piece{
      .cluster = {.characters = 1, .width = kBlank},
        .blank = blank
  };
  if (!blank) piece.cluster = ReadLetter(text);
  for (const TextCharacter& each : text.first(piece.cluster.characters)) {
    piece.text += Utf8Of(each.code);
  }
  return piece;
}

std::vector<Piece> PiecesOf(std::string_view text) {
  const std::vector<TextCharacter> characters = CharactersOf(text);
  std::span<const TextCharacter> left = characters;
  std::vector<Piece> pieces;
  while (!left.empty()) {
    pieces.push_back(ReadPiece(left));
    left = left.subspan(pieces.back().cluster.characters);
  }
  return pieces;
}

/// Lays pieces side by side.
class Line {
 public:
  explicit Line(const WordOptions& options) : options_(options) {}

  Word Lay(std::span<const Piece> pieces) {
    for (const Piece& piece : pieces) {
      for (const TextCharacter& each : piece.cluster.leftOut) {
        word_.leftOut.push_back({.text = Utf8Of(each.code), .at = each.at});
      }
      if (piece.blank) DrawHead();
      AddText(piece);
      if (piece.cluster.ink.Strokes() > 0) AddLetter(piece);
      word_.width += piece.cluster.width;
    }
    DrawHead();
    word_.letter = ink_.AsLetter(options_.step, std::move(text_));
    return std::move(word_);
  }

 private:
  void AddLetter(const Piece& piece) {
    const Cluster& cluster = piece.cluster;
    const std::size_t first = ink_.Strokes();
    ink_.Append(cluster.ink, word_.width);
    for (const Reach& reach : cluster.head)
      AddHead(reach.from + word_.width, reach.to + word_.width);
    if (options_.headLine == HeadLine::PerLetter) DrawHead();
    word_.letters.push_back({.text = piece.text,
                             .firstStroke = first,
                             .strokes = ink_.Strokes() - first,
                             .left = word_.width,
                             .right = word_.width + cluster.width});
  }

  /// Of what is written, with one blank between words.
  void AddText(const Piece& piece) {
    if (piece.blank) blank_ = !text_.empty();
    if (piece.cluster.ink.Strokes() == 0) return;
    if (std::exchange(blank_, false)) text_ += ' ';
    text_ += piece.text;
  }

  void AddHead(double from, double to) {
    if (!head_.empty() && from <= head_.back().to + kSameLine) {
      head_.back().to = std::max(head_.back().to, to);
    } else {
      head_.push_back({.from = from, .to = to});
    }
  }

  void DrawHead() {
    for (const Reach& reach : head_) {
      const Run line = LineRightRun(reach.from, kWordHead, reach.to);
      ink_.AddStroke({&line, 1});
    }
    head_.clear();
  }

  const WordOptions& options_;
  Word word_;
  WordInk ink_;
  std::string text_;
  bool blank_ = false;       ///< one follows the text
  std::vector<Reach> head_;  ///< of the word so far, or the letter
};

/// Breaks pieces into lines: each call gives the next.
class Breaker {
 public:
  Breaker(std::span<const Piece> pieces, double width) : left_(pieces), width_(width) {}

  bool AtEnd() const { return left_.empty(); }

  std::span<const Piece> Next() {
    const std::size_t count = HowMany();
    const auto line = left_.first(count);
    left_ = left_.subspan(count);
    return line;
  }

 private:
  /// Whole words as long as they have room, else as many letters of the first one; the blanks that
  /// follow stay with the line.
  std::size_t HowMany() const {
    double width = 0;
    std::size_t atBlank = 0;
    std::size_t i = 0;
    for (; i < left_.size(); ++i) {
      width += left_[i].cluster.width;
      if (left_[i].blank) {
        atBlank = i + 1;
      } else if (width > width_ && i > 0) {
        return atBlank > 0 ? atBlank : i;
      }
    }
    return i;
  }

  std::span<const Piece> left_;
  double width_;
};

std::span<const Piece> WithoutOuterBlanks(std::span<const Piece> line) {
  while (!line.empty() && line.front().blank) line = line.subspan(1);
  while (!line.empty() && line.back().blank) line = line.first(line.size() - 1);
  return line;
}

}  // namespace

Word LayWord(std::string_view text, const WordOptions& options) {
  const std::vector<Piece> pieces = PiecesOf(text);
  return Line(options).Lay(WithoutOuterBlanks(pieces));
}

std::vector<Word> LayLines(std::string_view text, double width, const WordOptions& options) {
  return WordText(text).Lay(width, options);
}

WordText::WordText(std::string_view text)
    : pieces_(std::make_shared<const std::vector<WordPiece>>(PiecesOf(text))) {}

std::size_t WordText::CountLines(double width) const {
  std::size_t count = 0;
  Breaker breaker(*pieces_, width);
  while (!breaker.AtEnd()) {
    const std::span<const Piece> line = breaker.Next();
    if (std::ranges::any_of(line,
                            [](const Piece& piece) { return piece.cluster.ink.Strokes() > 0; })) {
      ++count;
    }
  }
  return std::max<std::size_t>(count, 1);
}

double WordText::Width() const {
  double width = 0;
  for (const Piece& piece : WithoutOuterBlanks(*pieces_)) width += piece.cluster.width;
  return width;
}

std::vector<Word> WordText::Lay(double width, const WordOptions& options) const {
  std::vector<Word> lines;
  std::vector<LeftOut> leftOut;
  Breaker breaker(*pieces_, width);
  while (!breaker.AtEnd()) {
    const std::span<const Piece> onIt = breaker.Next();
    Word line = Line(options).Lay(WithoutOuterBlanks(onIt));
    line.goesOn = !breaker.AtEnd() && !onIt.back().blank;
    line.leftOut.insert(line.leftOut.begin(), leftOut.begin(), leftOut.end());
    leftOut.clear();
    if (line.letters.empty()) {
      leftOut = std::move(line.leftOut);
    } else {
      lines.push_back(std::move(line));
    }
  }
  if (lines.empty()) lines.emplace_back();
  auto& last = lines.back().leftOut;
  last.insert(last.end(), leftOut.begin(), leftOut.end());
  return lines;
}

Letter LinesAsLetter(std::span<const Word> lines, double pitch) {
  if (lines.empty()) return {};
  WordInk ink;
  std::string text;
  double down = 0;
  for (const Word& line : lines) {
    ink.Add(line.letter, {.down = down});
    text += line.letter.Text();
    if (!line.goesOn && &line != &lines.back()) text += ' ';
    down += pitch;
  }
  return ink.AsLetter(lines.front().letter.Step(), std::move(text));
}

}  // namespace bramlee
