#include "standalone/widgets/parameters/rows/colourTexts.h"

namespace orvuilib {

using orvUI_v1::HIGColor;

HIGColor colourOf(const QStringList& texts) {
  HIGColor colour{0, 0, 0, 1};
  float* const components[] = {&colour.r, &colour.g, &colour.b, &colour.a};
  for (qsizetype i = 0; i < texts.size() && i < 4; ++i) *components[i] = texts[i].toFloat();
  return colour;
}

QStringList textsOf(const HIGColor& colour, std::size_t count, const NumberFormat& format) {
  const float components[] = {colour.r, colour.g, colour.b, colour.a};
  QStringList texts;
  for (std::size_t i = 0; i < count; ++i) texts.append(format.print(components[i]));
  return texts;
}

}  // namespace orvuilib
