#include "ui/qt/open_dialog.h"

#include <QFile>
#include <QFileDialog>
#include <QLineEdit>

#include "ui/qt/look.h"

namespace keplin::qt {

// The dialog belongs to the window and is not deleted here: it would write what it remembers of
// itself into a file of settings. Qt's own dialog matches names in capitals or not.
std::optional<std::string> AskForFile(QWidget& window, const OpenFileRequest& request) {
    auto* dialog = new QFileDialog(&window, ToQt(request.title));
    dialog->setOption(QFileDialog::DontUseNativeDialog);
    dialog->setAcceptMode(QFileDialog::AcceptOpen);
    dialog->setFileMode(QFileDialog::AnyFile);
    dialog->setNameFilter(ToQt(request.filter.substr(0, request.filter.find('|'))));
    dialog->setDirectory(QFile::decodeName(request.initialDirectory.c_str()));
    // Names to complete would stay on the screen after Enter and keep the keyboard from the window.
    for (QLineEdit* edit : dialog->findChildren<QLineEdit*>())
        edit->setCompleter(nullptr);
    if (dialog->exec() != QDialog::Accepted || dialog->selectedFiles().isEmpty()) return {};
    return QFile::encodeName(dialog->selectedFiles().front()).toStdString();
}

}  // namespace keplin::qt
