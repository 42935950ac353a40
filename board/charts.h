// The charts: one large picture of a whole letter set, which leads to its board.
#pragma once

#include "ui/form.h"

namespace bramlee {

/// How one chart differs from the others.
struct ChartRecord {
  const char* form;         ///< the form's name
  const char* title;        ///< the window's caption
  const char* picture;      ///< resource of pic(1)
  const char* bookPicture;  ///< the same with the letters of the book
  const char* board;        ///< form that a click shows; "" for none
  void (*layOut)(Form&, PictureBox&);
  bool maximised = false;   ///< whether it is shown as a board is
  bool formClicks = false;  ///< whether a click beside the picture shows the board too
};

/// A chart. No screen of the program opens one; ShowForm with its name does. Its handlers ignore
/// errors.
class Chart : public Form {
 public:
  /// The record is used as long as the chart lives.
  explicit Chart(const ChartRecord& record);

  void Form_Load() override;  ///< lays form and picture out by the record
  void Present() override;    ///< comes into view, maximised if the record says so
  void Form_Click();          ///< beside the picture: the board, if the record says so
  void pic_Click();           ///< shows the record's board, if there is one

 protected:
  void mouseReleaseEvent(QMouseEvent* event) override;

 private:
  void FollowBook();

  const ChartRecord& record_;
  PictureBox* picture_;
};

// The four charts, by the names of their forms.
struct HindiVowelsChart : Chart {
  HindiVowelsChart();
};
struct HindiConsonantsChart : Chart {
  HindiConsonantsChart();
};
struct TeluguVowelsChart : Chart {
  TeluguVowelsChart();
};
struct TeluguConsonantsChart : Chart {
  TeluguConsonantsChart();
};

/// Registers the charts under their forms' names.
void RegisterCharts();

}  // namespace bramlee
