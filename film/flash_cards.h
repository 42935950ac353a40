// Letters as cards to print and cut out.
#pragma once

#include <vector>

#include "film/letter_film.h"
#include "paper/printed_pages.h"

namespace bramlee {

/// Cards on a page: two beside each other, four below.
inline constexpr int kCardsOnAPage = 8;

/// Cards with the letter as it is written, its steps, its printed sign, and room for a picture that
/// a teacher pastes or a child draws; fine lines to cut along. The letters have their films' ink
/// and numbers. Those without strokes are left out and named in Notes().
class FlashCards final : public PrintedPages {
 public:
  explicit FlashCards(std::vector<LetterFilm> letters, const PageFormat& page = {});

  /// How many letters have a card.
  std::size_t Letters() const { return letters_.size(); }
  int Count() const override;
  QSizeF SizeMm() const override { return page_.SizeMm(); }
  void Paint(QPainter& painter, int page) const override;
  QStringList Notes() const override { return notes_; }

 private:
  void PaintCutLines(QPainter& painter) const;
  void PaintCard(QPainter& painter, const LetterFilm& film) const;
  QSizeF CardMm() const;

  std::vector<LetterFilm> letters_;
  PageFormat page_;
  QStringList notes_;
};

}  // namespace bramlee
