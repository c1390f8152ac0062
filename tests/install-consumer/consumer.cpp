// Writes the documents of an empty program through an installed korvid.
#include <korvid/ParseTree.h>
#include <korvid/XMLOstrel.h>

int main(int argc, char **argv) {
  korvid::Program P("consumer.cbl");
  korvid::XMLOstrel E;
  E.EmitXML(&P, argc > 1 ? argv[1] : "consumer.xml", false);
  return E.getHandler().saveSucceeded() ? 0 : 1;
}
