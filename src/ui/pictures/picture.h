#pragma once

#include <QWidget>
#include <functional>
#include <memory>
#include <optional>
#include <vector>

#include "ui/pictures/theme.h"

class QCustomPlot;

namespace tavimor {

class Canvas;
class Panel;

/// Draws the whole of a picture on an empty canvas.
using Drawing = std::function<void(Canvas& canvas)>;

/// What a picture of any kind can do: wheel zoom, drag, a double click beside all points shows the whole; the place
/// under the pointer is told. See picture_file.h for saving and printing, picture_menu.h for the menu.
class Picture : public QWidget {
  Q_OBJECT

 public:
  explicit Picture(const QString& name);
  ~Picture() override;

  /// Shows a drawing in the place of the one before. `text` says in words what is to be seen; `title` names it.
  /// The part in view stays where the user has chosen one, as long as the axes are those of before.
  void show(const QString& title, const QString& text, Drawing drawing);

  /// Marks the point with this number in all panels that show it.
  void mark(std::optional<std::size_t> number);

  void showAll();
  const QString& title() const { return title_; }
  QCustomPlot& plot() { return *plot_; }
  const std::vector<std::unique_ptr<Panel>>& panels() const { return panels_; }

  /// The same for paper: black on white, with its title, the same part in view.
  std::unique_ptr<Picture> onPaper() const;

  QSize sizeHint() const override { return {560, 360}; }

 signals:
  void pointedAt(const QString& place);
  void pointClicked(std::size_t number);
  void pointDoubleClicked(std::size_t number);
  /// An arrow key, which moves what the page holds.
  void arrowPressed(Qt::Key key);
  /// Escape, which also shows the whole.
  void escaped();

 protected:
  void changeEvent(QEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;

 private:
  void connectMouse();
  void redraw();
  void zoom(double factor);

  QCustomPlot* plot_;
  std::optional<Theme> paper_;
  QString title_;
  Drawing drawing_;
  std::optional<std::size_t> marked_;
  bool isZoomed_ = false;
  std::vector<std::unique_ptr<Panel>> panels_;
};

}  // namespace tavimor
