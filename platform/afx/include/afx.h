#pragma once

// The framework's root: objects, run-time classes and the macros that declare them, strings and list
// positions.

#include <windows.h>

#include <cassert>
#include <cstddef>
#include <new>

#define AFXAPI
#define AFX_DATA
#define AFX_CDECL
#define BASED_CODE
#define afx_msg

/// Marks a class, or with the second name a function, that an extension module exports. The module's own
/// sources are compiled with _AFXEXT.
#if defined(_WIN32) && defined(_AFXEXT)
#define AFX_EXT_CLASS __declspec(dllexport)
#elif defined(_WIN32)
#define AFX_EXT_CLASS __declspec(dllimport)
#else
#define AFX_EXT_CLASS __attribute__((visibility("default")))
#endif
#define AFX_EXT_API AFX_EXT_CLASS

#define ASSERT(f) assert(f)
#define ASSERT_VALID(object) ASSERT((object) != nullptr)
#define ASSERT_KINDOF(class_name, object) ASSERT((object)->IsKindOf(RUNTIME_CLASS(class_name)))
#ifdef NDEBUG
#define VERIFY(f) ((void)(f))
#else
#define VERIFY(f) ASSERT(f)
#endif
#define TRACE(...) ((void)0)

class CArchive;
class CDumpContext;
class CObject;

/// The place of an element in a list; null is no place. It stays good until its own element is removed.
struct __POSITION {};
typedef __POSITION* POSITION;

/// What is known of a class at run time. One static record a class, never copied.
struct CRuntimeClass {
    LPCSTR m_lpszClassName;
    int m_nObjectSize;
    /// 0xFFFF for a class that is not serialised.
    UINT m_wSchema;
    /// Null for a class that cannot be created by its record.
    CObject* (*m_pfnCreateObject)();
    CRuntimeClass* m_pBaseClass;
    /// The next class of the list this one was entered in; owned by nobody.
    CRuntimeClass* m_pNextClass;

    /// A new object that the caller owns; null when the class cannot be created or the creation failed.
    CObject* CreateObject() const;
    /// True for the class itself and for every class below `pBaseClass`.
    BOOL IsDerivedFrom(const CRuntimeClass* pBaseClass) const;
    /// The class of this name in the class lists: the program's, then those of the extension modules. Null
    /// when no list holds it; only IMPLEMENT_SERIAL enters a class.
    static CRuntimeClass* FromName(LPCSTR lpszClassName);
};

/// The base of the framework's classes. Its five virtual operations come first in every derived class, in
/// this order.
class CObject {
  public:
    virtual CRuntimeClass* GetRuntimeClass() const;
    virtual ~CObject() = default;
    virtual void Serialize(CArchive& ar);
    virtual void AssertValid() const;
    virtual void Dump(CDumpContext& dc) const;

    CObject(const CObject&) = delete;
    CObject& operator=(const CObject&) = delete;

    /// Null when memory is short; the new-expression then answers null without running the constructor.
    void* operator new(std::size_t nSize) noexcept { return ::operator new(nSize, std::nothrow); }
    void* operator new(std::size_t nSize, const std::nothrow_t&) noexcept {
        return ::operator new(nSize, std::nothrow);
    }
    void* operator new(std::size_t, void* p) noexcept { return p; }
    void operator delete(void* p) noexcept { ::operator delete(p); }
    void operator delete(void* p, const std::nothrow_t&) noexcept { ::operator delete(p); }
    void operator delete(void*, void*) noexcept {}

    BOOL IsKindOf(const CRuntimeClass* pClass) const;
    /// True when the class has a schema number.
    BOOL IsSerializable() const;

    static CRuntimeClass classCObject;

  protected:
    CObject() = default;
};

/// Enters the class at the head of the class list of the module state. `pNewClass` is not owned.
void AfxClassInit(CRuntimeClass* pNewClass);

/// Enters a class by being constructed: IMPLEMENT_SERIAL makes one before the module's first code runs.
struct AFX_CLASSINIT {
    explicit AFX_CLASSINIT(CRuntimeClass* pNewClass) { AfxClassInit(pNewClass); }
};

#define RUNTIME_CLASS(class_name) (&class_name::class##class_name)

#define DECLARE_DYNAMIC(class_name)                                                                          \
  public:                                                                                                    \
    static CRuntimeClass class##class_name;                                                                  \
    CRuntimeClass* GetRuntimeClass() const override;

#define DECLARE_DYNCREATE(class_name)                                                                        \
    DECLARE_DYNAMIC(class_name)                                                                              \
    static CObject* CreateObject();

#define DECLARE_SERIAL(class_name) DECLARE_DYNCREATE(class_name)

#define IMPLEMENT_RUNTIMECLASS(class_name, base_class_name, wSchema, pfnNew)                                 \
    CRuntimeClass class_name::class##class_name = {                                                          \
        #class_name, sizeof(class_name), wSchema, pfnNew, RUNTIME_CLASS(base_class_name), nullptr};          \
    CRuntimeClass* class_name::GetRuntimeClass() const { return RUNTIME_CLASS(class_name); }

#define IMPLEMENT_DYNAMIC(class_name, base_class_name)                                                       \
    IMPLEMENT_RUNTIMECLASS(class_name, base_class_name, 0xFFFF, nullptr)

#define IMPLEMENT_DYNCREATE(class_name, base_class_name)                                                     \
    CObject* class_name::CreateObject() { return new class_name; }                                           \
    IMPLEMENT_RUNTIMECLASS(class_name, base_class_name, 0xFFFF, class_name::CreateObject)

#define IMPLEMENT_SERIAL(class_name, base_class_name, wSchema)                                               \
    CObject* class_name::CreateObject() { return new class_name; }                                           \
    IMPLEMENT_RUNTIMECLASS(class_name, base_class_name, wSchema, class_name::CreateObject)                   \
    static const AFX_CLASSINIT _init_##class_name(RUNTIME_CLASS(class_name));

/// `pObject` when it is of the class or below, else null; null for null.
CObject* AfxDynamicDownCast(const CRuntimeClass* pClass, CObject* pObject);

#define DYNAMIC_DOWNCAST(class_name, object)                                                                 \
    (static_cast<class_name*>(AfxDynamicDownCast(RUNTIME_CLASS(class_name), object)))

#include "afxstr.h"
