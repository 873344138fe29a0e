// Makes elements from text. No text is ever read as markup.

const kSvg = "http://www.w3.org/2000/svg";

function fill(element, attributes, children) {
  for (const [name, value] of Object.entries(attributes)) {
    if (value !== null) element.setAttribute(name, value);
  }
  // One by one: a machine can have more children than a call can have arguments.
  for (const child of children) element.append(child);
  return element;
}

function make(name, attributes = {}, ...children) {
  return fill(document.createElement(name), attributes, children);
}

function draw(name, attributes = {}, ...children) {
  return fill(document.createElementNS(kSvg, name), attributes, children);
}

function byId(id) {
  return document.getElementById(id);
}
