// The menu bar of a board, in the order in which it reads.
#include "board/board.h"

namespace bramlee {
namespace {

const char* const kColourCaptions[] = {"&Black", "&Blue", "&Green", "&Red", "&Yellow", "&White"};
const char* const kRuleCaptions[] = {"&SingleRulled", "&DoubleRulled", "&TripleRulled",
                                     "&FourRulled", "&FiveRulled"};
const char* const kFormatCaptions[] = {".wma", ".mp3", ".wav", ".cda"};
const char* const kSpeedCaptions[] = {"1", "2", "3", "4", "5", "6"};

/// Width of the gap before "&Clear", in blanks.
constexpr int kSpacerBlanks = 66;

}  // namespace

void Board::MakeMenus() {
  const auto text = [](const char* latin) { return QString::fromLatin1(latin); };
  const auto addArray = [&](QMenu* menu, const char* array, const auto& captions,
                            void (Board::*click)(int)) {
    int index = 0;
    for (const char* caption : captions) {
      ++index;
      AddItem(menu, Indexed(array, index), text(caption),
              [this, click, index] { (this->*click)(index); });
    }
  };

  QMenu* file = AddMenu(text("mnufile"), text("&File"));
  AddCommand(file, text("mnublink"), text("&Blink"), [this] { mnublink_Click(); });
  AddCommand(file, text(record_.backItem), text("&Back"), [this] { mnuclose_Click(); });

  QMenu* colours = AddMenu(text("mnucolors"), text("&Colors"));
  addArray(AddMenu(colours, text("mnugcolor1"), text("&GridColor")), "mnugcolor", kColourCaptions,
           &Board::mnugcolor_Click);
  addArray(AddMenu(colours, text("mnulcolor"), text("&LettersColor")), "mnucolor", kColourCaptions,
           &Board::mnucolor_Click);
  addArray(AddMenu(colours, text("mnuspeed"), text("&Speed")), "mnuspd", kSpeedCaptions,
           &Board::mnuspd_Click);

  QMenu* draw = AddMenu(text("mnudraw"), text("&Draw"));
  AddCommand(draw, text("mnudall"), text("&DrawAll     "), [this] { mnudall_Click(); });
  addArray(AddMenu(draw, text("mnudlines"), text("&DrawLines")), "mnurulled", kRuleCaptions,
           &Board::mnurulled_Click);
  AddItem(draw, text("mnugrid"), text("&DrawGrid     "), [this] { mnugrid_Click(); });
  if (record_.showTiles != nullptr) {
    AddItem(draw, text("mnudrawalt"), text("&Draw Alternatives"), [this] { mnudrawalt_Click(); });
  }

  QMenu* audio = AddMenu(text("mnuaud1"), text(record_.audioCaption));
  AddItem(audio, text("mnuaud"), text("&Play"), [this] { mnuaud_Click(); });
  addArray(AddMenu(audio, text("mnuaud3"), text("&Format")), "mnufor", kFormatCaptions,
           &Board::mnufor_Click);

  record_.makeOwn(*this);

  AddBarItem(text("mnublank1"), QString(kSpacerBlanks, u' '), {});
  AddBarItem(text("mnuclear1"), text("&Clear     "), [this] { mnuclear1_Click(); });
}

}  // namespace bramlee
