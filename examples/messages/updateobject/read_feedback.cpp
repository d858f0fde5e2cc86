// Prints the messages of a feedback, a line for each.

#include <iostream>

#include <trnidom/TRNIDOM_Document.h>
#include <trnidom/TRNIDOM_Element.h>
#include <trnidom/TRNIDOM_Parser.h>

#include <dxmd/updateobject/DXActionFeedbackHelper.h>

int main(int argc, char** argv) {
  if (argc != 2) return 2;
  TRNIDOM_Element root = TRNIDOM_Parser::parseFile(argv[1]).getDocumentElement();
  DXActionFeedbackHelper feedback;
  feedback.Take(root);
  I18NString text;
  feedback.Render(text);  // each line begins with a line feed
  std::cout << text << "\n";
}
