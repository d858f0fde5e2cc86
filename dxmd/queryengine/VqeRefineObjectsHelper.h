#ifndef DXMD_QUERYENGINE_VQEREFINEOBJECTSHELPER_H
#define DXMD_QUERYENGINE_VQEREFINEOBJECTSHELPER_H

#include <trn/I18NString.h>
#include <trnidom/TRNIDOM_Document.h>
#include <trnidom/TRNIDOM_Element.h>

#include <dxmd/core/Export.h>
#include <dxmd/queryframework/QFDXCommandHelper.h>

/// The command that refines a published model for a list of objects, and the reader of the objects sent back.
///
/// Written: build and hand back, "refinePublishedModel" in the modelling command's envelope. The objects are added
/// after `Make`, into the tree that it handed back; a further `Make` starts a new tree.
/// Read: `Take` puts a cursor on the first object of the response, which must stay as it is until the objects have
/// been read.
/// A helper is used by one thread at a time.
class DXMD_API VqeRefineObjectsHelper : public QFDXCommandHelper {
 public:
  /// @param modelPath  the published model to refine: the text of "model" in "source".
  explicit VqeRefineObjectsHelper(const I18NString& modelPath);
  ~VqeRefineObjectsHelper() override;

  /// Adds an object to the request that the last `Make` handed back.
  /// @throws TRNAssertError when the identifier is empty or nothing was made yet.
  void addRequestObject(const I18NString& objectID);

  /// Gives the next object of the response taken.
  /// @return false when there is none; `objectID` is then untouched.
  /// @throws TRNAssertError when the identifier is empty, or when the node behind it is not the next "expression":
  ///         nothing may stand between two objects, not even white space. `objectID` has been set then, and the cursor
  ///         stands on the offending node.
  bool getResponseObject(I18NString& objectID);

 protected:
  void doMake(TRNIDOM_Document& doc, TRNIDOM_Element& elem) const override;

  /// @throws TRNAssertError when the response is null, which leaves the cursor where it was, or when its first
  ///         "expression" is not a child of a "response"; the cursor then stands on that "expression", which
  ///         `getResponseObject` gives all the same.
  void doTake(TRNIDOM_Element& domResponse) override;

 private:
  mutable TRNIDOM_Element m_requestRoot;
  TRNIDOM_Element m_currentResponseObject;
};

#endif
