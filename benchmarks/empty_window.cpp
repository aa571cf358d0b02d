// keplin-bench-empty-window [TEXT]: what any program with one window needs, up to its first sight;
// with a text in it the window needs the system's fonts as well.
#include <QLabel>

#include "benchmarks/painted.h"

int main(int argc, char** argv) {
    QApplication application(argc, argv);
    QWidget window;
    window.setFixedSize(622, 343);  // as the program's
    if (argc > 1) new QLabel(argv[1], &window);
    window.show();
    return keplin::benchmarks::TellWhenPainted();
}
