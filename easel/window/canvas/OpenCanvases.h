// Which canvas shows which of the host's windows.
#pragma once

#include <map>

namespace easel::runtime {
class DrawingWindow;
}

namespace easel::window {

class Canvas;

class OpenCanvases {
  public:
    // Null if no canvas shows the window.
    Canvas* of(const runtime::DrawingWindow& window) const;

    // The canvas shows the window as long as this lives.
    class Entry {
      public:
        Entry(OpenCanvases& canvases, const runtime::DrawingWindow& window, Canvas& canvas);
        ~Entry();
        Entry(const Entry&) = delete;
        Entry& operator=(const Entry&) = delete;

      private:
        OpenCanvases& canvases_;
        const runtime::DrawingWindow& window_;
    };

  private:
    std::map<const runtime::DrawingWindow*, Canvas*> canvases_;
};

} // namespace easel::window
