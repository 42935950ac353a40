// The light of a recording.
#pragma once

#include <QWidget>
#include <cstdint>

namespace bramlee {

/// A lamp: dark, a number that counts down, or red and lit while the microphone is open.
class TakeLight : public QWidget {
  Q_OBJECT
 public:
  explicit TakeLight(QWidget* parent = nullptr);

  void ShowDark() { Show(State::Dark, 0); }
  void ShowCount(int number) { Show(State::Count, number); }
  void ShowLit() { Show(State::Lit, 0); }
  bool IsLit() const { return state_ == State::Lit; }

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  enum class State : std::uint8_t { Dark, Count, Lit };
  void Show(State state, int number);

  State state_ = State::Dark;
  int number_ = 0;
};

}  // namespace bramlee
