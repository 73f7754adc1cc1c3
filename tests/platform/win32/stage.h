#pragma once

// A window class whose windows write down what they are sent, and a tiny picture to draw on.

#include "platform/clock.h"

#include <gtest/gtest.h>
#include <windows.h>

#include <functional>
#include <map>
#include <string>
#include <vector>

/// Names windows, keeps the log of their messages and lets a test answer them. Everything is torn down with
/// it.
class WindowStage : public testing::Test {
  public:
    using Answer = std::function<LRESULT(HWND, WPARAM, LPARAM)>;

    WindowStage();
    ~WindowStage() override;

    /// A visible top-level window at (100, 50) of the screen.
    HWND Top(const std::string& name, int width = 40, int height = 30);
    /// A visible child at this place in its parent.
    HWND Child(const std::string& name, HWND parent, int x, int y, int width, int height);
    /// From now on `answer` stands for the window's default handling of the message.
    void On(const std::string& name, UINT message, Answer answer);
    /// The log since the last call, of the messages that a test asked for: "A:destroy B:destroy".
    std::string TakeLog();
    void Log(UINT message, const std::string& word) { m_words[message] = word; }
    void Note(const std::string& word) { m_log += (m_log.empty() ? "" : " ") + word; }
    /// Dispatches all that waits; answers how many messages that were.
    int Pump();

    platform::CVirtualClock m_clock;

  private:
    static LRESULT CALLBACK Procedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam);
    HWND Create(const std::string& name, DWORD style, RECT place, HWND parent);

    std::map<HWND, std::string> m_names;
    std::vector<HWND> m_tops;
    std::map<std::pair<std::string, UINT>, Answer> m_answers;
    std::map<UINT, std::string> m_words;
    std::string m_creating;
    std::string m_log;
};

/// A gray picture in a memory context. Pixels read as letters: '-' gray, 'k' black, 'W' white, 'R' red, 'G'
/// green, 'B' blue.
class Picture {
  public:
    Picture(int width, int height);
    ~Picture();
    Picture(const Picture&) = delete;
    Picture& operator=(const Picture&) = delete;

    HDC Dc() const { return m_dc; }
    HBITMAP Bitmap() const { return m_bitmap; }
    DWORD* Pixels() const { return m_pixels; }
    /// Selects a pen or brush, which goes with the picture.
    void Use(HGDIOBJ object);
    void Paint(const std::vector<std::string>& rows);
    std::vector<std::string> Rows() const;

  private:
    HDC m_dc;
    HBITMAP m_bitmap;
    HGDIOBJ m_before;
    DWORD* m_pixels = nullptr;
    int m_width;
    int m_height;
    std::vector<HGDIOBJ> m_used;
};

using Rows = std::vector<std::string>;
constexpr COLORREF Black = RGB(0, 0, 0);
constexpr COLORREF White = RGB(255, 255, 255);
constexpr COLORREF Red = RGB(255, 0, 0);
