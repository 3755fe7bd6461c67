// A program whose text can be dragged into others: its first word is the text, the next two tell
// where on the display its window stands.
#include <QApplication>
#include <QLineEdit>

int main(int argc, char *argv[]) {
  const QApplication application(argc, argv);
  const QStringList words = QApplication::arguments();
  QLineEdit field(words.at(1));
  field.setWindowTitle(QStringLiteral("drag source"));
  field.setDragEnabled(true);
  field.setGeometry(words.at(2).toInt(), words.at(3).toInt(), 150, 40);
  field.show();
  field.selectAll();
  return QApplication::exec();
}
