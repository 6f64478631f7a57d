#pragma once

#include <QByteArray>
#include <QSize>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

class QPrinter;

namespace tavimor {

class Picture;

enum class PictureFormat { Png, Svg, Pdf };

/// The endings of the files that a picture can be saved in, such as "png", the usual one first. SVG is among them where
/// the toolkit has it.
std::vector<std::string> pictureEndings();

/// ".png, .svg or .pdf"
std::string pictureEndingsText();

/// By the ending of a file's name, small or capital; nothing for any other ending.
std::optional<PictureFormat> pictureFormatOf(std::string_view path);

/// A picture as the content of a file, with its title, black on white. The size is in points of 1/96 inch; a PNG has
/// twice as many pixels, a PDF one page of this size. Nothing for a format that is not
/// among pictureEndings.
QByteArray pictureFile(const Picture& picture, PictureFormat format, const QSize& size = {960, 640});

/// Saves it, whole or not at all, in the place of a file that may be there. Errors: a RunTimeError with the path.
void savePicture(const Picture& picture, const std::string& path);

/// On one page of the printer, as large as its width allows.
void printPicture(const Picture& picture, QPrinter& printer);

}  // namespace tavimor
