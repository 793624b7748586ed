// The question whether a user without templates would like some to begin with.
#pragma once

namespace easel::window {

class NoticeBar;
struct SharedParts;

// Asks in the notice bar, unless and until the user has templates or has answered elsewhere. The bar and the
// parts outlive the answer. Whether it asked.
bool offerStarterTemplates(NoticeBar& notice, SharedParts& shared);

} // namespace easel::window
