// bramlee-sound-scan: has the sound library take stock of its plug-ins, which it does when a user
// needs it for the first time and after each change of what is installed, and ends. The program
// starts it, so that no cue waits for that and the library's memory is not the program's.
#include <QAudioDecoder>
#include <QCoreApplication>

int main(int argc, char** argv) {
  const QCoreApplication app(argc, argv);
  const QAudioDecoder decoder;  // loads the library
  return decoder.isSupported() ? 0 : 1;
}
