#ifndef DXMD_QUERYENGINE_VQEQUERYSUBJECTHELPER_H
#define DXMD_QUERYENGINE_VQEQUERYSUBJECTHELPER_H

#include <trn/I18NString.h>
#include <trnidom/TRNIDOM_Document.h>
#include <trnidom/TRNIDOM_Element.h>

#include <dxmd/core/Export.h>
#include <dxmd/queryframework/QFDXCommandHelper.h>

/// The command that defines an ad hoc query subject from an SQL definition.
///
/// Written: build and hand back, "querySubject" in the modelling command's envelope. The first "sql" of type "veltra"
/// in the definition is written with the type "Veltra", the name the engine knows it by; others go as they are.
/// Nothing is read. A helper is used by one thread at a time.
class DXMD_API VqeQuerySubjectHelper : public QFDXCommandHelper {
 public:
  /// @param modelPath   the model that the query subject is defined in.
  /// @param definition  copied at each `Make`; until then the helper keeps a handle to it.
  VqeQuerySubjectHelper(const I18NString& modelPath, TRNIDOM_Element& definition);
  ~VqeQuerySubjectHelper() override;

 protected:
  /// @throws TRNIDOM_DOMException when the definition is null.
  void doMake(TRNIDOM_Document& doc, TRNIDOM_Element& elem) const override;

 private:
  TRNIDOM_Element m_definition;
};

#endif
