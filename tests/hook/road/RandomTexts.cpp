#include "tests/hook/road/RandomTexts.h"

namespace {

/// One of the texts that a space-free table holds.
template <std::size_t count>
QString oneOf(const char16_t* const (&texts)[count], unsigned index) {
  return QString::fromUtf16(texts[index % count]);
}

QString fromCode(char32_t code) { return QString::fromUcs4(&code, 1); }

}  // namespace

QString RandomTexts::characterOf(unsigned kind) {
  static constexpr const char16_t* kNeedEscapes[] = {u"\"", u"\\",   u"\t", u"\n",
                                                     u"\r", u"\\\"", u"\\n"};
  static constexpr const char16_t* kLineParts[] = {u"; ", u" // ", u" -flag ", u"'",  u"{a,b}",
                                                   u"=",  u",",    u"^1s",     u"%s", u"  "};
  switch (kind) {
    case kPlain:
      return fromCode(U'!' + below(94));
    case kEscaped:
      return oneOf(kNeedEscapes, below(64));
    case kControl:
      return fromCode(below(3) == 0 ? 0x7F + below(0x21) : 1 + below(31));
    case kLatin:
      return fromCode(0xA0 + below(0x60));
    case kBasicPlane: {
      // What lies between stands for halves of characters beyond the plane.
      const char32_t code = 0x100 + below(0xFFFE - 0x100 - 0x800);
      return fromCode(code < 0xD800 ? code : code + 0x800);
    }
    case kBeyond:
      return fromCode(0x10000 + below(0x100000));
    default:
      return oneOf(kLineParts, below(100));
  }
}

QString RandomTexts::ofLength(unsigned length) {
  const bool mixed = below(3) == 0;
  const unsigned kind = below(kKinds);
  QString text;
  for (unsigned i = 0; i < length; ++i) text += characterOf(mixed ? below(kKinds) : kind);
  return text;
}

QString RandomTexts::brief() { return ofLength(below(8) == 0 ? 0 : below(20)); }

QString RandomTexts::any() { return below(50) == 0 ? ofLength(1000 + below(4000)) : brief(); }
