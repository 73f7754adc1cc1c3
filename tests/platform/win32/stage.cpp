#include "stage.h"

#include "platform/faults.h"
#include "platform/input.h"
#include "platform/observer.h"
#include "platform/surface.h"

#include <algorithm>

namespace {

WindowStage* g_stage = nullptr;

} // namespace

WindowStage::WindowStage() {
    g_stage = this;
    platform::SetClock(&m_clock);
    WNDCLASSA stageClass = {};
    stageClass.lpfnWndProc = Procedure;
    stageClass.lpszClassName = "StageWindow";
    RegisterClassA(&stageClass);
}

WindowStage::~WindowStage() {
    m_answers.clear();
    m_words.clear();
    for (HWND top : m_tops) {
        DestroyWindow(top);
    }
    UnregisterClassA("StageWindow", nullptr);
    platform::ClearFaults();
    platform::SetObserver(nullptr);
    platform::SetPresenter(nullptr);
    platform::ResetInput();
    platform::SetClock(nullptr);
    g_stage = nullptr;
}

HWND WindowStage::Create(const std::string& name, DWORD style, RECT place, HWND parent) {
    m_creating = name;
    return CreateWindowExA(0, "StageWindow", "", style, place.left, place.top, place.right, place.bottom,
                           parent, nullptr, nullptr, nullptr);
}

HWND WindowStage::Top(const std::string& name, int width, int height) {
    m_tops.push_back(Create(name, WS_POPUP | WS_VISIBLE, {100, 50, width, height}, nullptr));
    return m_tops.back();
}

HWND WindowStage::Child(const std::string& name, HWND parent, int x, int y, int width, int height) {
    return Create(name, WS_CHILD | WS_VISIBLE, {x, y, width, height}, parent);
}

void WindowStage::On(const std::string& name, UINT message, Answer answer) {
    m_answers[{name, message}] = std::move(answer);
}

std::string WindowStage::TakeLog() { return std::exchange(m_log, ""); }

int WindowStage::Pump() {
    int count = 0;
    MSG message;
    while (PeekMessageA(&message, nullptr, 0, 0, PM_REMOVE)) {
        TranslateMessage(&message);
        DispatchMessageA(&message);
        ++count;
    }
    return count;
}

LRESULT CALLBACK WindowStage::Procedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    WindowStage& stage = *g_stage;
    const std::string name = stage.m_names.try_emplace(window, stage.m_creating).first->second;
    if (const auto word = stage.m_words.find(message); word != stage.m_words.end()) {
        stage.Note(name + ":" + word->second);
    }
    const auto answer = stage.m_answers.find({name, message});
    if (answer == stage.m_answers.end()) {
        return DefWindowProcA(window, message, wParam, lParam);
    }
    // A copy, for the answer may change the table.
    const Answer chosen = answer->second;
    return chosen(window, wParam, lParam);
}

namespace {

const std::map<char, DWORD>& Letters() {
    static const std::map<char, DWORD> letters = {{'-', 0x808080}, {'k', 0},        {'W', 0xFFFFFF},
                                                  {'R', 0xFF0000}, {'G', 0x00FF00}, {'B', 0x0000FF}};
    return letters;
}

char LetterOf(DWORD pixel) {
    const auto found =
        std::find_if(Letters().begin(), Letters().end(), [pixel](auto& l) { return l.second == pixel; });
    return found == Letters().end() ? '?' : found->first;
}

} // namespace

Picture::Picture(int width, int height)
    : m_dc(CreateCompatibleDC(nullptr)), m_width(width), m_height(height) {
    BITMAPINFO info = {};
    info.bmiHeader = {sizeof(BITMAPINFOHEADER), width, -height, 1, 32, BI_RGB, 0, 0, 0, 0, 0};
    void* bits = nullptr;
    m_bitmap = CreateDIBSection(nullptr, &info, DIB_RGB_COLORS, &bits, nullptr, 0);
    m_pixels = static_cast<DWORD*>(bits);
    m_before = SelectObject(m_dc, m_bitmap);
    std::fill_n(m_pixels, width * height, Letters().at('-'));
}

Picture::~Picture() {
    DeleteDC(m_dc);
    DeleteObject(m_bitmap);
    for (HGDIOBJ used : m_used) {
        DeleteObject(used);
    }
}

void Picture::Use(HGDIOBJ object) {
    SelectObject(m_dc, object);
    m_used.push_back(object);
}

void Picture::Paint(const std::vector<std::string>& rows) {
    for (int i = 0; i < m_width * m_height; ++i) {
        m_pixels[i] = Letters().at(rows[static_cast<size_t>(i / m_width)][static_cast<size_t>(i % m_width)]);
    }
}

std::vector<std::string> Picture::Rows() const {
    std::vector<std::string> rows(static_cast<size_t>(m_height));
    for (int i = 0; i < m_width * m_height; ++i) {
        rows[static_cast<size_t>(i / m_width)] += LetterOf(m_pixels[i]);
    }
    return rows;
}
