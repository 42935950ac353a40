#include "engine/stroke_rec.h"

#include <gtest/gtest.h>

#include <iterator>
#include <map>
#include <string>

namespace bramlee {
namespace {

#define FIELD(name) #name, &StrokeRec::name

/// Every double of the record.
struct Field {
  const char* name;
  double StrokeRec::*member;
};
// clang-format off
constexpr Field kFields[] = {
    {FIELD(X1)}, {FIELD(X2)}, {FIELD(X3)}, {FIELD(X4)}, {FIELD(X5)},
    {FIELD(X6)}, {FIELD(X7)}, {FIELD(X8)}, {FIELD(X9)}, {FIELD(X10)},
    {FIELD(Y1)}, {FIELD(Y2)}, {FIELD(Y3)}, {FIELD(Y4)}, {FIELD(Y5)},
    {FIELD(Y6)}, {FIELD(Y7)}, {FIELD(Y8)}, {FIELD(Y9)}, {FIELD(Y10)},
    {FIELD(Col1)}, {FIELD(Col2)}, {FIELD(Col3)}, {FIELD(Col4)}, {FIELD(Col5)},
    {FIELD(Row1)}, {FIELD(Row2)}, {FIELD(Row3)}, {FIELD(Row4)}, {FIELD(Row5)},
    {FIELD(Rad)},
    {FIELD(CX1)}, {FIELD(CX2)}, {FIELD(CX3)}, {FIELD(CX4)}, {FIELD(CX5)},
    {FIELD(CY1)}, {FIELD(CY2)}, {FIELD(CY3)}, {FIELD(CY4)}, {FIELD(CY5)},
    {FIELD(R1)}, {FIELD(R2)}, {FIELD(R3)}, {FIELD(R4)}, {FIELD(R5)},
    {FIELD(StartAngle)}, {FIELD(EndAngle)},
    {FIELD(CellW)}, {FIELD(CellH)}, {FIELD(Unit)}, {FIELD(RowH)},
    {FIELD(WX1)}, {FIELD(WX2)}, {FIELD(WX3)}, {FIELD(WX4)}, {FIELD(WX5)},
    {FIELD(WY1)}, {FIELD(WY2)}, {FIELD(WY3)}, {FIELD(WY4)}, {FIELD(WY5)},
};
// clang-format on
#undef FIELD

/// The fields named hold these values, all others 0.
void ExpectFields(const StrokeRec& rec, const std::map<std::string, double>& values) {
  std::size_t met = 0;
  for (const Field& field : kFields) {
    const auto found = values.find(field.name);
    if (found != values.end()) ++met;
    EXPECT_EQ(rec.*field.member, found == values.end() ? 0 : found->second) << field.name;
  }
  EXPECT_EQ(met, values.size());
  EXPECT_EQ(rec.StepFlag, 0);
  EXPECT_EQ(rec.SweepDir, 0);
  EXPECT_EQ(rec.LastResult, 0);
  EXPECT_EQ(rec.LoopNo, 0);
  EXPECT_EQ(rec.AltFlag, 0);
}

TEST(FillStrokeRec, LaysOutTheSheetOfTheCapitals) {
  const StrokeRec rec = FillStrokeRec(SheetKind::Capitals, 26);
  EXPECT_EQ(rec.LetterNo, 26);
  ExpectFields(rec, {
                        {"Unit",  50  },
                        {"RowH",  100 },
                        {"CellW", 200 },
                        {"CellH", 200 },
                        {"Col1",  400 },
                        {"Col2",  600 },
                        {"Col3",  800 },
                        {"Col4",  1000},
                        {"Col5",  1200},
                        {"Row1",  50  },
                        {"Row2",  150 },
                        {"Row3",  250 },
                        {"Row4",  350 },
                        {"Row5",  450 },
                        {"X1",    400 },
                        {"X2",    600 },
                        {"X3",    800 },
                        {"X4",    1000},
                        {"Y1",    50  },
                        {"Y2",    150 },
                        {"Y3",    250 },
                        {"Y4",    350 },
  });
}

TEST(FillStrokeRec, LaysOutTheSheetOfTheSmallLetters) {
  const StrokeRec rec = FillStrokeRec(SheetKind::SmallLetters, 1);
  EXPECT_EQ(rec.LetterNo, 1);
  ExpectFields(rec,
               {
                   {"Unit",  50  },
                   {"RowH",  75  },
                   {"CellW", 200 },
                   {"CellH", 200 },
                   {"Rad",   75  },
                   {"Col1",  400 },
                   {"Col2",  600 },
                   {"Col3",  800 },
                   {"Col4",  1000},
                   {"Col5",  1200},
                   {"Row1",  50  },
                   {"Row2",  125 },
                   {"Row3",  200 },
                   {"Row4",  275 },
                   {"Row5",  350 },
                   {"X1",    400 },
                   {"X2",    600 },
                   {"X3",    800 },
                   {"X4",    1000},
                   {"X5",    1200},
                   {"Y1",    50  },
                   {"Y2",    125 },
                   {"Y3",    200 },
                   {"Y4",    275 },
                   {"Y5",    350 },
  });
}

TEST(FillStrokeRec, LaysOutTheWideSheetOfHindiTeluguAndMaths) {
  const StrokeRec rec = FillStrokeRec(SheetKind::Wide, 111);
  EXPECT_EQ(rec.LetterNo, 111);
  ExpectFields(rec, {
                        {"Unit",  50   },
                        {"RowH",  75   },
                        {"CellW", 250  },
                        {"CellH", 75   },
                        {"Rad",   75   },
                        {"R1",    75   },
                        {"R2",    5    },
                        {"R3",    18.75},
                        {"Col1",  100  },
                        {"Col2",  350  },
                        {"Col3",  600  },
                        {"Col4",  850  },
                        {"Col5",  1100 },
                        {"Row1",  250  },
                        {"Row2",  325  },
                        {"Row3",  400  },
                        {"Row4",  475  },
                        {"Row5",  550  },
                        {"X1",    100  },
                        {"X2",    350  },
                        {"X3",    600  },
                        {"X4",    850  },
                        {"X5",    1100 },
                        {"Y1",    250  },
                        {"Y2",    325  },
                        {"Y3",    400  },
                        {"Y4",    475  },
                        {"Y5",    550  },
  });
}

TEST(FillStrokeRec, MakesEveryRecordFresh) {
  StrokeRec first = FillStrokeRec(SheetKind::Wide, 5);
  first.X1 = first.WX3 = first.CellW = -1;
  first.AltFlag = 1;
  const StrokeRec second = FillStrokeRec(SheetKind::Wide, 5);
  EXPECT_EQ(second.X1, 100);
  EXPECT_EQ(second.WX3, 0);
  EXPECT_EQ(second.CellW, 250);
  EXPECT_EQ(second.AltFlag, 0);
}

TEST(ColumnOf, GivesTheLeftEdgeOfColumnsOneToFive) {
  const StrokeRec rec = FillStrokeRec(SheetKind::Wide, 1);
  for (int column = 1; column <= 5; ++column) {
    EXPECT_EQ(ColumnOf(rec, column), 100 + 250 * (column - 1));
  }
}

TEST(ColumnOf, IsZeroForAColumnThatTheSheetDoesNotHave) {
  const StrokeRec rec = FillStrokeRec(SheetKind::Wide, 1);
  for (const int column : {-1, 0, 6}) {
    EXPECT_FALSE(IsColumn(column));
    EXPECT_EQ(ColumnOf(rec, column), 0) << column;
  }
  EXPECT_TRUE(IsColumn(1));
  EXPECT_TRUE(IsColumn(5));
}

}  // namespace
}  // namespace bramlee
