#include "ui/qt/open_dialog.h"

#include <QDir>
#include <QFile>
#include <QFileDialog>
#include <QFileSystemWatcher>
#include <QHeaderView>
#include <QLineEdit>
#include <QListView>
#include <QScreen>
#include <QStandardPaths>
#include <QStyle>
#include <QTreeView>
#include <QUrl>

#include "ui/qt/look.h"

namespace keplin::qt {
namespace {

enum Column { kName, kSize, kType, kDate };  // as Qt's dialog numbers them

QStringList OfTheUser(const QStringList& mounts) {
    QStringList folders;
    for (const QString& folder : mounts)
        folders << folder + '/' + QFileInfo(QDir::homePath()).owner();
    return folders;
}

// The places at which an update file may have arrived.
QList<QUrl> Places(const QStringList& mounts) {
    QStringList folders;
    for (const auto place : {QStandardPaths::DownloadLocation, QStandardPaths::DesktopLocation,
                             QStandardPaths::DocumentsLocation, QStandardPaths::HomeLocation}) {
        folders << QStandardPaths::writableLocation(place);
    }
    for (const QString& parent : OfTheUser(mounts)) {
        for (const QFileInfo& mount : QDir(parent).entryInfoList(QDir::Dirs | QDir::NoDotAndDotDot))
            folders << mount.filePath();
    }
    QList<QUrl> places;
    for (const QString& folder : folders) {
        if (QFileInfo(folder).isDir()) places << QUrl::fromLocalFile(folder);
    }
    return places << QUrl("file:");  // the whole computer
}

// A stick that is plugged in while the dialog stands open appears. Later the places are left alone:
// looking at one that hangs would hold up an update.
void ShowPlaces(QFileDialog& dialog, const QStringList& mounts) {
    const int small = dialog.style()->pixelMetric(QStyle::PM_SmallIconSize);
    auto* bar = dialog.findChild<QListView*>("sidebar");
    if (bar != nullptr) bar->setIconSize(QSize(small, small));
    auto* watcher = new QFileSystemWatcher(&dialog);
    const auto show = [&dialog, mounts, bar, watcher] {
        watcher->addPaths(mounts + OfTheUser(mounts));  // those that are there
        dialog.setSidebarUrls(Places(mounts));
        if (bar != nullptr) bar->setMinimumWidth(bar->sizeHintForColumn(0) + 2 * bar->frameWidth());
    };
    QObject::connect(watcher, &QFileSystemWatcher::directoryChanged, &dialog, show);
    QObject::connect(&dialog, &QDialog::finished, watcher, &QObject::deleteLater);
    show();
}

// Names and dates whole, the newest file on top; that they are all of one type is known.
void ShowNewestFirst(QFileDialog& dialog) {
    dialog.setViewMode(QFileDialog::Detail);
    auto* list = dialog.findChild<QTreeView*>("treeView");
    if (list == nullptr) return;
    list->header()->setSectionResizeMode(kName, QHeaderView::Stretch);
    list->header()->setSectionResizeMode(kDate, QHeaderView::ResizeToContents);
    list->setColumnHidden(kType, true);
    list->sortByColumn(kDate, Qt::DescendingOrder);
}

// What is typed counts, as it stands. Names to complete would stay on the screen after Enter and
// keep the keyboard from the window; a folder that was marked because the path began like it would
// be opened in place of the file.
void TakeWhatIsTyped(QFileDialog& dialog) {
    auto* edit = dialog.findChild<QLineEdit*>("fileNameEdit");
    auto* list = dialog.findChild<QTreeView*>("treeView");
    if (edit == nullptr || list == nullptr) return;
    edit->setCompleter(nullptr);
    QObject::connect(edit, &QLineEdit::textChanged, list, [edit, list] {
        if (edit->hasFocus()) list->clearSelection();
    });
    QObject::connect(edit, &QLineEdit::returnPressed, &dialog, [edit, &dialog] {
        if (dialog.isVisible()) edit->clear();  // it named a folder, which is shown now
    });
}

// The dialog gets a frame like the window's.
void FitToScreen(QFileDialog& dialog, const QWidget& window) {
    const QSize frame = window.frameGeometry().size() - window.size();
    dialog.resize(dialog.sizeHint().boundedTo(window.screen()->availableSize() - frame));
}

}  // namespace

// The dialog belongs to the window and is not deleted here: it would write what it remembers of
// itself into a file of settings. Qt's own dialog matches names in capitals or not.
std::optional<std::string> AskForFile(QWidget& window, const OpenFileRequest& request,
                                      const QStringList& mounts) {
    auto* dialog = new QFileDialog(&window, ToQt(request.title));
    dialog->setOption(QFileDialog::DontUseNativeDialog);
    dialog->setNameFilter(ToQt(request.filter.substr(0, request.filter.find('|'))));
    dialog->setDirectory(QFile::decodeName(request.initialDirectory.c_str()));
    ShowPlaces(*dialog, mounts);
    ShowNewestFirst(*dialog);
    FitToScreen(*dialog, window);
    TakeWhatIsTyped(*dialog);
    if (dialog->exec() != QDialog::Accepted || dialog->selectedFiles().isEmpty()) return {};
    return QFile::encodeName(dialog->selectedFiles().front()).toStdString();
}

}  // namespace keplin::qt
