#include "ui/pictures/picture_file.h"

#include <qcustomplot.h>

#include <QBuffer>
#include <QPdfWriter>
#include <QPrinter>
#ifdef TAVIMOR_SVG
#include <QSvgGenerator>
#endif
#include <algorithm>

#include "formats/replaced_file.h"
#include "ui/pictures/picture.h"

namespace tavimor {

namespace {

constexpr int kDotsPerInch = 96;

// Vector formats are drawn without the pixel buffers of a screen.
void draw(Picture& paper, QPaintDevice& device, const QSize& size, double scale) {
  QCPPainter painter;
  painter.begin(&device);
  painter.setMode(QCPPainter::pmVectorized);
  painter.setMode(QCPPainter::pmNoCaching);
  painter.scale(scale, scale);
  paper.plot().toPainter(&painter, size.width(), size.height());
  painter.end();
}

QByteArray png(Picture& paper, const QSize& size) {
  constexpr double kPixelsPerPoint = 2.0;
  QByteArray bytes;
  QBuffer buffer(&bytes);
  buffer.open(QIODevice::WriteOnly);
  paper.plot().toPixmap(size.width(), size.height(), kPixelsPerPoint).save(&buffer, "PNG");
  return bytes;
}

#ifdef TAVIMOR_SVG
QByteArray svg(Picture& paper, const QSize& size) {
  QByteArray bytes;
  QBuffer buffer(&bytes);
  QSvgGenerator generator;
  generator.setOutputDevice(&buffer);
  generator.setTitle(paper.title());
  generator.setResolution(kDotsPerInch);
  generator.setSize(size);
  generator.setViewBox(QRect(QPoint(0, 0), size));
  draw(paper, generator, size, 1.0);
  return bytes;
}
#endif

QByteArray pdf(Picture& paper, const QSize& size) {
  constexpr double kPointsPerInch = 72.0;
  QByteArray bytes;
  QBuffer buffer(&bytes);
  buffer.open(QIODevice::WriteOnly);
  QPdfWriter writer(&buffer);
  writer.setTitle(paper.title());
  writer.setCreator(QStringLiteral("Tavimor"));
  writer.setPageSize(QPageSize(QSizeF(size) * kPointsPerInch / kDotsPerInch, QPageSize::Point));
  writer.setPageMargins(QMarginsF());
  draw(paper, writer, size, static_cast<double>(writer.resolution()) / kDotsPerInch);
  return bytes;
}

struct Form {
  PictureFormat format;
  const char* ending;
  QByteArray (*file)(Picture& paper, const QSize& size);
};

constexpr Form kForms[] = {{PictureFormat::Png, "png", png},
#ifdef TAVIMOR_SVG
                           {PictureFormat::Svg, "svg", svg},
#endif
                           {PictureFormat::Pdf, "pdf", pdf}};

}  // namespace

std::vector<std::string> pictureEndings() {
  std::vector<std::string> endings;
  for (const Form& form : kForms) endings.emplace_back(form.ending);
  return endings;
}

std::string pictureEndingsText() {
  const std::vector<std::string> endings = pictureEndings();
  std::string text = "." + endings.front();
  for (std::size_t n = 1; n < endings.size(); ++n) text += (n + 1 < endings.size() ? ", ." : " or .") + endings[n];
  return text;
}

std::optional<PictureFormat> pictureFormatOf(std::string_view path) {
  const std::size_t dot = path.rfind('.');
  std::string ending(dot == std::string_view::npos ? std::string_view() : path.substr(dot + 1));
  std::transform(ending.begin(), ending.end(), ending.begin(),
                 [](char c) { return c >= 'A' && c <= 'Z' ? c + 32 : c; });
  for (const Form& form : kForms)
    if (ending == form.ending) return form.format;
  return std::nullopt;
}

QByteArray pictureFile(const Picture& picture, PictureFormat format, const QSize& size) {
  const std::unique_ptr<Picture> paper = picture.onPaper();
  for (const Form& form : kForms)
    if (form.format == format) return form.file(*paper, size);
  return {};
}

void savePicture(const Picture& picture, const std::string& path) {
  const PictureFormat format = pictureFormatOf(path).value_or(PictureFormat::Png);
  replaceFile(path, pictureFile(picture, format).toStdString());
}

void printPicture(const Picture& picture, QPrinter& printer) {
  const std::unique_ptr<Picture> paper = picture.onPaper();
  const QSizeF page = printer.pageLayout().paintRect(QPageLayout::Inch).size() * kDotsPerInch;
  const QSize size(static_cast<int>(page.width()), static_cast<int>(std::min(page.height(), page.width() * 2 / 3)));
  draw(*paper, printer, size, static_cast<double>(printer.resolution()) / kDotsPerInch);
}

}  // namespace tavimor
