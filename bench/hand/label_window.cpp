// What any window costs: the measure for the start of ours.
#include <QApplication>
#include <QLabel>

int main(int argc, char** argv) {
    const QApplication application(argc, argv);
    QLabel label(QStringLiteral("Guten Tag"));
    label.show();
    return QApplication::exec();
}
