#include "platform/ORV_1_0/ChangeBracketClient.h"

namespace ORV_v1 {

ChangeBracketClient::ChangeBracketClient() = default;
ChangeBracketClient::~ChangeBracketClient() = default;

bool ChangeBracketClient::activeChangeBracket() const { return openBrackets() > 0; }

unsigned int ChangeBracketClient::openBrackets() const { return ownBrackets_; }

ReferenceCounted* ChangeBracketClient::clientObject() { return nullptr; }

}  // namespace ORV_v1
