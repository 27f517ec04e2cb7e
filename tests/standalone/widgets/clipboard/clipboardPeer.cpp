// clipboardPeer WHAT: another program at the same clipboard.
//   copy   puts standard input there as a graph    plain    as plain text
//   paste  prints what a graph is pasted from      formats  prints the formats that are there
// One that puts something there says "ready" and stays until standard input says so much as a byte
// more, as the window system asks the owner for the content.

#include <QClipboard>
#include <QGuiApplication>
#include <QMimeData>
#include <QSocketNotifier>
#include <iostream>
#include <iterator>
#include <string>

#include "standalone/widgets/clipboard/QtClipboard.h"

namespace {

/// A line that tells the length, and so many bytes.
std::string readText() {
  std::string length;
  std::getline(std::cin, length);
  std::string text(std::stoul(length), '\0');
  std::cin.read(text.data(), static_cast<std::streamsize>(text.size()));
  return text;
}

int stay(const QGuiApplication&) {
  std::cout << "ready" << std::endl;
  const QSocketNotifier end(0, QSocketNotifier::Read);
  QObject::connect(&end, &QSocketNotifier::activated, [] { QCoreApplication::quit(); });
  return QCoreApplication::exec();
}

}  // namespace

int main(int argc, char** argv) {
  const QGuiApplication application(argc, argv);
  orvuilib::QtClipboard clipboard;
  const std::string what = argc > 1 ? argv[1] : "";
  if (what == "copy") return clipboard.setText(readText()) ? stay(application) : 2;
  if (what == "plain") {
    QGuiApplication::clipboard()->setText(QString::fromStdString(readText()));
    return stay(application);
  }
  if (what == "paste") {
    std::cout << clipboard.text();
  } else if (what == "formats") {
    const QMimeData* data = QGuiApplication::clipboard()->mimeData();
    for (const QString& format : data->formats()) std::cout << format.toStdString() << '\n';
  } else {
    return 1;
  }
  return 0;
}
