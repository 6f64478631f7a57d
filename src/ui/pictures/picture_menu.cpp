#include "ui/pictures/picture_menu.h"

#include <QAction>
#include <QClipboard>
#include <QFileDialog>
#include <QGuiApplication>
#include <QMimeData>
#include <QPrinter>

#include "runtime/failure.h"
#include "runtime/text.h"
#include "ui/controls/message_box.h"
#include "ui/controls/printing/print_dialog.h"
#include "ui/pictures/picture.h"
#include "ui/pictures/picture_file.h"

namespace tavimor {

namespace {

void copy(const Picture& picture) {
  auto* data = new QMimeData;
  data->setImageData(QImage::fromData(pictureFile(picture, PictureFormat::Png), "PNG"));
  const QByteArray drawing = pictureFile(picture, PictureFormat::Svg);
  if (!drawing.isEmpty()) data->setData(QStringLiteral("image/svg+xml"), drawing);
  QGuiApplication::clipboard()->setMimeData(data);
}

// "PNG (*.png)"
QStringList nameFilters() {
  QStringList filters;
  for (const std::string& ending : pictureEndings()) {
    const QString small = QString::fromStdString(ending);
    filters << small.toUpper() + QStringLiteral(" (*.") + small + u')';
  }
  return filters;
}

void saveAs(Picture& picture) {
  QFileDialog dialog(picture.window(), QStringLiteral("Save picture"));
  dialog.setAcceptMode(QFileDialog::AcceptSave);
  dialog.setNameFilters(nameFilters());
  dialog.setDefaultSuffix(QStringLiteral("png"));
  QObject::connect(&dialog, &QFileDialog::filterSelected, &dialog,
                   [&](const QString& filter) { dialog.setDefaultSuffix(filter.left(3).toLower()); });
  if (dialog.exec() != QDialog::Accepted || dialog.selectedFiles().isEmpty()) return;
  const std::string path = dialog.selectedFiles().constFirst().toStdString();
  if (!pictureFormatOf(path)) {
    showWarning(QString::fromStdString("A picture is saved as " + pictureEndingsText() + "."));
    return;
  }
  try {
    savePicture(picture, path);
  } catch (const Failure& failure) {
    showWarning(QString::fromStdString(failure.report() + "\n" + withEscapes(failure.path())));
  }
}

void print(const Picture& picture) {
  QPrinter printer;
  printer.setDocName(picture.title());
  if (choosePrinter(printer) == DialogEnd::Confirmed) printPicture(picture, printer);
}

template <class Work>
void addItem(Picture& picture, const char* name, const char* caption, const QKeySequence& shortcut, Work work) {
  auto* item = new QAction(QLatin1String(caption), &picture);
  item->setObjectName(QLatin1String(name));
  item->setShortcut(shortcut);
  item->setShortcutContext(Qt::WidgetWithChildrenShortcut);
  picture.addAction(item);
  QObject::connect(item, &QAction::triggered, &picture, [&picture, work] { work(picture); });
}

}  // namespace

void addPictureMenu(Picture& picture) {
  picture.setContextMenuPolicy(Qt::ActionsContextMenu);
  addItem(picture, "mnuPictureCopy", "&Copy", QKeySequence::Copy, copy);
  addItem(picture, "mnuPictureSave", "&Save as...", QKeySequence::Save, saveAs);
  addItem(picture, "mnuPicturePrint", "&Print...", QKeySequence::Print, print);
  addItem(picture, "mnuPictureAll", "Show &all", {}, [](Picture& shown) { shown.showAll(); });
}

}  // namespace tavimor
