// Sections of a page, each with a link to it at the top.

function troubleNote(title, error) {
  return make("p", { class: "trouble broken" }, `${title} could not be drawn: ${printable(String(error))}`);
}

function contentOf(section) {
  try {
    return section.content();
  } catch (error) {
    return troubleNote(section.title, error);
  }
}

function addSection(section) {
  const content = contentOf(section);
  if (!content) return;
  const id = section.title.toLowerCase().replace(/[^a-z]+/g, "-");
  const heading = make("h2", { id, tabindex: "-1" }, section.title);
  byId("content").append(make("section", { "aria-labelledby": id }, heading, content));
  byId("sections").append(make("li", {}, make("a", { href: "#" + id }, section.title)));
}
