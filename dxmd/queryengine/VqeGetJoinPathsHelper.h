#ifndef DXMD_QUERYENGINE_VQEGETJOINPATHSHELPER_H
#define DXMD_QUERYENGINE_VQEGETJOINPATHSHELPER_H

#include <set>
#include <vector>

#include <trn/I18NString.h>
#include <trnidom/TRNIDOM_Document.h>
#include <trnidom/TRNIDOM_Element.h>

#include <dxmd/core/Export.h>
#include <dxmd/queryframework/QFDXCommandHelper.h>

/// The command that asks for the join paths between expressions, and the reader of its answer.
///
/// Written: build and hand back, "getJoinPaths" in the modelling command's envelope.
/// Read: `Take` keeps a handle to the response, which the getters read; a response that is null or no element holds
/// nothing. A helper is used by one thread at a time.
class DXMD_API VqeGetJoinPathsHelper : public QFDXCommandHelper {
 public:
  /// @param modelPath  the model whose join paths are asked for: the text of "model" in "source".
  explicit VqeGetJoinPathsHelper(const I18NString& modelPath);
  ~VqeGetJoinPathsHelper() override;

  /// Appends an expression to the request; an empty one is ignored.
  void AddItem(const I18NString& expression);

  /// Whether the response has a join path, at any depth.
  bool PathExists() const;

  /// Adds the joins of all join paths of the response to the set, which is not cleared.
  void GetJoins(std::set<I18NString>& joins) const;

 protected:
  void doMake(TRNIDOM_Document& doc, TRNIDOM_Element& elem) const override;
  void doTake(TRNIDOM_Element& elem) override;

 private:
  std::vector<I18NString> m_items;
  TRNIDOM_Element m_response;
};

#endif
