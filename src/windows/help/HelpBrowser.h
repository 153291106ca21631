// SPDX-License-Identifier: MIT
#pragma once

#include <functional>
#include <optional>
#include <string>

#include "help/HelpFile.h"
#include "windows/help/HelpHistory.h"
#include "windows/help/PagePictures.h"
#include "windows/help/RichPage.h"

namespace dayvane::help {

/// Shows the pages of a help file, with a history to go back and forward in. It loads nothing from anywhere else: an
/// address that names no topic gives a page that says so.
class HelpBrowser : public RichPage {
 public:
  HelpBrowser(HWND parent, const widgets::SharedLook& look);

  /// Shows pages of this file from now on. It must outlive the browser or the next call.
  void SetHelpFile(const HelpFile& file);

  /// There is no help file to show: every page says why, in plain text.
  void SetProblem(const std::string& problem);

  void ShowTopic(const std::string& name);
  void ShowUnknownContext() { ShowTopic("?"); }

  void Back();
  void Forward();
  const HelpHistory& History() const { return m_history; }

  /// Steps of text size, 0 being the user's own; within the range that can still be read.
  void Zoom(int steps);
  void ResetZoom() { Zoom(-m_zoom); }

  /// FitRoom, which must come after these, makes the page anew for another room, other letters or colours. It keeps its
  /// place.
  void SetLook(const widgets::SharedLook& look) override;
  void PlaceBrowser(const RECT& place);
  void FitRoom();

  /// Another page is shown: its topic's name, which means nothing for a page that the browser made itself, and title.
  std::function<void(const std::string& topic, const std::string& title)> TopicShown;

 private:
  struct Contents {
    std::string title;
    std::vector<Block> blocks;
  };

  Contents ContentsOf(const std::string& topic) const;
  void Leave();
  void Arrive();
  void LayOut();
  void ShowAgain();

  const HelpFile* m_file = nullptr;
  std::string m_problem;
  HelpHistory m_history;
  Contents m_contents;
  std::optional<PagePictures> m_pictures;
  int m_zoom = 0;
  int m_room = 0;  ///< that the page was made for
};

/// Makes and shows a page in a window of rich text.
void LayOutPage(RichPage& window, const std::string& title, const std::vector<Block>& blocks,
                const HelpColours& colours, PagePictures& pictures, int zoom, bool popup);

/// What goes with RichPage::ShowPage: the scale between its dots per inch and those of its screen.
double ScaleOf(const RichPage& window);

}  // namespace dayvane::help
