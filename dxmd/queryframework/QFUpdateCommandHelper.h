#ifndef DXMD_QUERYFRAMEWORK_QFUPDATECOMMANDHELPER_H
#define DXMD_QUERYFRAMEWORK_QFUPDATECOMMANDHELPER_H

#include <trn/I18NString.h>
#include <trnidom/TRNIDOM_Document.h>
#include <trnidom/TRNIDOM_Element.h>

#include <dxmd/core/Export.h>
#include <dxmd/core/OwnedList.h>
#include <dxmd/queryframework/QFCommandHelper.h>

/// The "update" command: update subjects, each a name and a text, for one model.
///
/// Written: build and hand back, in the command envelope.
///
/// A helper is used by one thread at a time.
class DXMD_API QFUpdateCommandHelper : public QFCommandHelper {
 public:
  /// An update subject: an "updateSubject" element.
  struct UpdateSubj {
    I18NString name;  ///< "name"
    I18NString text;  ///< text of the element
  };

  /// @param modelPath  the model to update: the text of "modelPath".
  explicit QFUpdateCommandHelper(const I18NString& modelPath);
  ~QFUpdateCommandHelper() override;

  /// Appends a subject; duplicates are kept.
  void AddUpdateSubject(const I18NString& name, const I18NString& text);

 protected:
  void doMake(TRNIDOM_Document& doc, TRNIDOM_Element& element) const override;

 private:
  dxmd::OwnedList<UpdateSubj> m_updateSubjects;
};

#endif
