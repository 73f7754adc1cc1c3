// The editor that the host itself opens, and the one that is open, whoever opened it.
#pragma once

#include <string>

#include "editor_binding.h"

class CDesk;

/// Owns at most one editor on the bare view and ends it when its input ends.
class CEditorHost final : private IInplaceEditorNotify {
  public:
    /// The desk is not owned and outlives the host's editor.
    explicit CEditorHost(CDesk& desk) : m_desk(desk) {}
    ~CEditorHost();
    CEditorHost(const CEditorHost&) = delete;
    CEditorHost& operator=(const CEditorHost&) = delete;

    void OnModuleLoaded(HMODULE hModule) { m_bBound = BindEditor(hModule, m_calls); }
    /// The host's editor goes with its class.
    void OnModuleGoes();
    /// The editor's operations; null while no module with all of them is loaded.
    const EditorCalls* Calls() const { return m_bBound ? &m_calls : nullptr; }

    /// A new editor in the former one's place, with the focus when it is visible: what m_fnCreate answered.
    /// 0 also without the module or without memory.
    int New(CPoint ptAnchor, const std::string& text, int nVisible);
    /// Ends the host's editor unasked, without notification; the view has the focus then. 1, or 0 when there
    /// is none.
    int Destroy();
    /// The host's editor, else a tool's; null for none.
    CInplaceEditor* Editor() const { return m_pEditor ? m_pEditor : ToolEditor(); }
    /// The editor that a tool has open on the view, or null.
    CInplaceEditor* ToolEditor() const;
    /// Makes the host the editor's notify target, or nobody.
    void Listen(CInplaceEditor& editor, bool bListen) {
        editor.m_fnRegisterNotifyObject(bListen ? this : nullptr);
    }

    /// How often the input of the host's editors has ended, and with which text the last time.
    int EndedInputs() const { return m_nEndedInputs; }
    const std::string& EndedText() const { return m_endedText; }

  private:
    void OnInputEnded(CInplaceEditor* pEditor) override;
    void DeleteEditor();
    /// Whether the window is an editor on the view; it may be gone.
    bool IsEditor(HWND hWnd) const;

    CDesk& m_desk;
    EditorCalls m_calls;
    bool m_bBound = false;
    CInplaceEditor* m_pEditor = nullptr;  ///< owned
    mutable HWND m_hToolEditor = nullptr; ///< the tool's editor that had the focus last; may be gone
    int m_nEndedInputs = 0;
    std::string m_endedText;
};
