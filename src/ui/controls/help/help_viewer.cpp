#include "ui/controls/help/help_viewer.h"

#include <QHBoxLayout>
#include <QScreen>
#include <QScrollBar>
#include <QShortcut>
#include <QSplitter>

#include "ui/controls/help/help_contents.h"
#include "ui/controls/help/help_page.h"
#include "ui/controls/help/help_print.h"
#include "ui/controls/help/help_search.h"
#include "ui/controls/make_control.h"

namespace tavimor {

void HelpViewer::showFile(const QString& path, const QString& page) {
  auto* viewer = openForm<HelpViewer>();
  if (viewer == nullptr) viewer = new HelpViewer;
  viewer->setWindowState(viewer->windowState() & ~Qt::WindowMinimized);
  viewer->show();
  viewer->raise();
  viewer->activateWindow();
  QUrl url = QUrl::fromLocalFile(path);
  if (!page.isEmpty()) url.setFragment(page);
  viewer->txtPage->setSource(url);
}

HelpViewer::HelpViewer() : Form(QStringLiteral("HelpViewer")) {
  setWindowTitle(QStringLiteral("Tavimor Help"));
  makeControls();
  layOut();
  connectEvents();
  addKeys();
  txtPage->setFocus();
}

void HelpViewer::makeControls() {
  tvwContents = new HelpContents(QStringLiteral("tvwContents"));
  txtPage = new HelpPage(QStringLiteral("txtPage"));
  search_ = new HelpSearch(*txtPage);
  cmdBack = makeButton(QStringLiteral("cmdBack"), "&Back");
  cmdForward = makeButton(QStringLiteral("cmdForward"), "&Forward");
  cmdContents = makeButton(QStringLiteral("cmdContents"), "&Contents");
  cmdPrint = makeButton(QStringLiteral("cmdPrint"), "&Print...");
  cmdBack->setEnabled(false);
  cmdForward->setEnabled(false);
}

void HelpViewer::layOut() {
  auto* commands = new QHBoxLayout;
  for (QPushButton* button : {cmdBack, cmdForward, cmdContents, cmdPrint}) commands->addWidget(button);
  commands->addStretch();

  auto* parts = new QSplitter;
  parts->addWidget(tvwContents);
  parts->addWidget(txtPage);
  parts->setChildrenCollapsible(false);
  parts->setStretchFactor(1, 1);

  auto* layout = new QVBoxLayout(this);
  layout->addLayout(commands);
  layout->addWidget(parts, 1);
  layout->addWidget(search_);

  const int listWidth = widthOf(*tvwContents, 32), pageWidth = widthOf(*txtPage, 80);
  parts->setSizes({listWidth, pageWidth});
  resize(QSize(listWidth + pageWidth, pageWidth).boundedTo(screen()->availableSize() * 9 / 10));
}

void HelpViewer::connectEvents() {
  connect(tvwContents, &HelpContents::chosen, this, &HelpViewer::goTo);
  connect(txtPage, &QTextBrowser::backwardAvailable, cmdBack, &QWidget::setEnabled);
  connect(txtPage, &QTextBrowser::forwardAvailable, cmdForward, &QWidget::setEnabled);
  connect(txtPage, &QTextBrowser::sourceChanged, this, &HelpViewer::sourceShown);
  connect(txtPage->verticalScrollBar(), &QScrollBar::valueChanged, this, &HelpViewer::scrolled);
  connect(cmdBack, &QPushButton::clicked, txtPage, &QTextBrowser::backward);
  connect(cmdForward, &QPushButton::clicked, txtPage, &QTextBrowser::forward);
  connect(cmdContents, &QPushButton::clicked, this, &HelpViewer::cmdContents_Click);
  connect(cmdPrint, &QPushButton::clicked, this, &HelpViewer::cmdPrint_Click);
}

void HelpViewer::addKeys() {
  new QShortcut(QKeySequence::Back, this, [this] { txtPage->backward(); });
  new QShortcut(QKeySequence::Forward, this, [this] { txtPage->forward(); });
  new QShortcut(QKeySequence::Find, this, [this] { search_->begin(); });
  new QShortcut(QKeySequence::FindNext, this, [this] { search_->findNext(); });
  new QShortcut(QKeySequence::FindPrevious, this, [this] { search_->findPrevious(); });
  new QShortcut(QKeySequence::Print, this, [this] { cmdPrint_Click(); });
  new QShortcut(QKeySequence::ZoomIn, this, [this] { txtPage->zoomIn(); });
  new QShortcut(QKeySequence::ZoomOut, this, [this] { txtPage->zoomOut(); });
  new QShortcut(Qt::CTRL | Qt::Key_0, this, [this] { txtPage->resetZoom(); });
  new QShortcut(Qt::Key_Escape, this, [this] { close(); });
}

void HelpViewer::goTo(const QString& anchor) {
  QUrl url = txtPage->source();
  url.setFragment(anchor.isEmpty() ? QString() : anchor);
  txtPage->setSource(url);
}

void HelpViewer::sourceShown(const QUrl& source) {
  const QUrl file = source.adjusted(QUrl::RemoveFragment);
  if (file != listedFile_) tvwContents->list(readHeadings(*txtPage->document()));
  listedFile_ = file;
  const int target = anchorPosition(*txtPage->document(), source.fragment(QUrl::FullyDecoded));
  txtPage->moveCaret(target);
  tvwContents->mark(target);
}

void HelpViewer::scrolled() { tvwContents->mark(txtPage->topPosition()); }

void HelpViewer::cmdContents_Click() {
  goTo({});
  tvwContents->setFocus();
}

void HelpViewer::cmdPrint_Click() { printHelp(*txtPage->printedDocument(), windowTitle()); }

}  // namespace tavimor
