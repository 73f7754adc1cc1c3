#pragma once

// The clipboard. Text alone has a format; what holds it is platform/clipboard.h's affair.

#include "win32/types.h"

constexpr UINT CF_TEXT = 1;

/// Opens the clipboard for the window (null: for the task) until CloseClipboard. FALSE and error 5 while
/// another window has it open.
BOOL OpenClipboard(HWND owner);
/// FALSE and error 1418 when it is not open.
BOOL CloseClipboard();
/// FALSE and error 1418 when it is not open.
BOOL EmptyClipboard();
/// Puts a text, up to its first zero, on the clipboard and takes the block over. Null, and the block stays
/// the caller's: error 1418 (not open), 6 (not a block), 87 (no text format), 8 (memory is short).
HANDLE SetClipboardData(UINT format, HANDLE block);
/// A block with the text and its zero. It belongs to the clipboard, is only to be read, and is good until the
/// clipboard is closed or changed. Null when there is no such data, and error 1418 when it is not open.
HANDLE GetClipboardData(UINT format);
/// Needs no open clipboard.
BOOL IsClipboardFormatAvailable(UINT format);
