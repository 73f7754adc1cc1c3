#!/usr/bin/env python3
"""exports_test.py OBJDUMP MODULE: what the module that was built for Windows gives to others and wants of them."""
import re
import subprocess
import sys


def tables(objdump, module):
    """The exported names, and the names of the libraries that are imported from."""
    text = subprocess.run([objdump, "-p", module], stdout=subprocess.PIPE, text=True, check=True).stdout
    exports = text[text.index("[Ordinal/Name Pointer] Table"):]
    return re.findall(r"^\s*\[ *\d+\] (\S+)$", exports, re.M), re.findall(r"DLL Name: (\S+)", text)


def readable(names):
    result = subprocess.run(["c++filt"], input="\n".join(names), stdout=subprocess.PIPE, text=True, check=True)
    return result.stdout.splitlines()


def is_editors(name):
    return re.match(r"(non-virtual thunk to )?CInplaceEditor::", name) or name in (
        "vtable for CInplaceEditor", "typeinfo for CInplaceEditor", "typeinfo name for CInplaceEditor")


def main():
    exports, libraries = tables(*sys.argv[1:])
    shown = readable(exports)
    faults = [f"exports {name}" for name in shown if not is_editors(name) and name != "g_fnLoadAndLinkToolCat"]
    # One of each kind: the entry, a constructor, a function, a static one, a constant one, the table.
    wanted = ("g_fnLoadAndLinkToolCat", "CInplaceEditor::CInplaceEditor()", "CInplaceEditor::m_fnSetText(CString&)",
              "CInplaceEditor::m_fnPix2Twip(int)", "CInplaceEditor::m_fnGetText(CString&) const",
              "vtable for CInplaceEditor")
    faults += [f"does not export {name}" for name in wanted if name not in shown]
    ours = {"PradixHost.dll", "PradixAfx.dll"}
    system = {"KERNEL32.dll", "USER32.dll", "GDI32.dll", "msvcrt.dll"}
    faults += [f"does not import from {name}" for name in ours - set(libraries)]
    faults += [f"imports from {name}" for name in set(libraries) - ours - system]
    print("\n".join(faults) or f"{len(exports)} exports")
    return 1 if faults else 0


sys.exit(main())
