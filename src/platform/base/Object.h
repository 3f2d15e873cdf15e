#pragma once

// CObject and CRuntimeClass: run-time class records, so that code can ask an object for its
// class, test derivation, and create objects of a class chosen at run time (the grid creates
// its cells this way).

#include "platform/base/Export.h"
#include "platform/base/WinTypes.h"

class CObject;

struct ORVA_API CRuntimeClass {
    const char* m_lpszClassName;
    int m_nObjectSize;
    UINT m_wSchema;
    CObject* (*m_pfnCreateObject)(); // null for a class that cannot be created dynamically
    CRuntimeClass* m_pBaseClass;

    // A new object of this class, or null when the class has no creator.
    CObject* CreateObject() const;
    bool IsDerivedFrom(const CRuntimeClass* base) const;
};

class ORVA_API CObject {
public:
    virtual ~CObject() = default;
    virtual CRuntimeClass* GetRuntimeClass() const;
    bool IsKindOf(const CRuntimeClass* cls) const;

    static CRuntimeClass classCObject;

protected:
    CObject() = default;
    CObject(const CObject&) = default;
    CObject& operator=(const CObject&) = default;
};

#define RUNTIME_CLASS(class_name) (&class_name::class##class_name)

#define DECLARE_DYNAMIC(class_name)                                                                \
public:                                                                                            \
    static CRuntimeClass class##class_name;                                                        \
    CRuntimeClass* GetRuntimeClass() const override;

#define DECLARE_DYNCREATE(class_name)                                                              \
    DECLARE_DYNAMIC(class_name)                                                                    \
    static CObject* CreateObject();

#define ORVA_IMPLEMENT_RUNTIMECLASS(class_name, base_class_name, schema, creator)                  \
    CRuntimeClass class_name::class##class_name = {#class_name, int(sizeof(class_name)), schema,   \
                                                   creator, RUNTIME_CLASS(base_class_name)};       \
    CRuntimeClass* class_name::GetRuntimeClass() const { return RUNTIME_CLASS(class_name); }

#define IMPLEMENT_DYNAMIC(class_name, base_class_name)                                             \
    ORVA_IMPLEMENT_RUNTIMECLASS(class_name, base_class_name, 0xFFFF, nullptr)

#define IMPLEMENT_DYNCREATE(class_name, base_class_name)                                           \
    CObject* class_name::CreateObject() { return new class_name; }                                 \
    ORVA_IMPLEMENT_RUNTIMECLASS(class_name, base_class_name, 0xFFFF, class_name::CreateObject)
