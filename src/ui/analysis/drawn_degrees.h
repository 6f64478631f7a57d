#pragma once

#include <vector>

#include "analysis/degree_map.h"
#include "ui/analysis/degrees_page.h"
#include "ui/pictures/picture.h"

namespace tavimor {

/// The map of degrees as a picture: a double click on a combination chooses it.
class DrawnDegrees : public DegreesPicture {
  Q_OBJECT

 public:
  DrawnDegrees();

  void showDegrees(const std::shared_ptr<const Analysis>& analysis,
                   const std::shared_ptr<const DegreeSearch>& degrees) override;

 private:
  Picture* picture_;
  std::shared_ptr<const DegreeSearch> degrees_;
};

}  // namespace tavimor
