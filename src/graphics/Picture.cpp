#include "graphics/Picture.h"

namespace orvane {

bool IsShown(Picture picture, std::int32_t level) {
  switch (picture) {
    case Picture::Mark:
    case Picture::CurrentFolder:
    case Picture::Popup:
      return level >= clsOptions::OptionLevel_Minimum;
    case Picture::Reset:
    case Picture::OwnFolder:
    case Picture::Add:
    case Picture::Action:
    case Picture::Task:
    case Picture::Designer:
    case Picture::OwnIcon:
      return level >= clsOptions::OptionLevel_Medium;
    case Picture::None:
    case Picture::UnknownFile:
      break;
  }
  return false;
}

}  // namespace orvane
