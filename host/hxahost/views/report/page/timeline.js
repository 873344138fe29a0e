// The events of all logs that contain times, in one order, and the logs without times.

const kBins = 120;

function dddEvent(object) {
  const place = `Channel ${textOf(object, "Channel")}, ID ${textOf(object, "ID")}`;
  return { object, log: "Defunct drives", number: textOf(object, "Controller"), severity: "",
    level: levelOfEvent("DDD"), text: `${place}, reason ${textOf(object, "Reason")}: ${textOf(object, "Descrip")}` };
}

// A text of a log, such as "__proto__", must not match anything except the levels.
function levelOfEvent(severity) {
  return Object.hasOwn(report.data.eventLevels, severity) ? report.data.eventLevels[severity] : "unknown";
}

function managerEvent(object) {
  const severity = textOf(object, "Severity");
  return { object, log: "RAID manager", number: "", severity, level: levelOfEvent(severity),
    text: textOf(object, "Message"), machine: textOf(object, "MachineName") };
}

// The parts of a calendar time; null if the log contains no time or an impossible one.
function eventMoment(event) {
  const parts = timeParts(String(event.object.properties.MessageTimestamp ?? ""));
  const milliseconds = parts ? Date.parse(`${parts.date}T${parts.clock}Z`) : NaN;
  return Number.isNaN(milliseconds) ? null : { ...parts, milliseconds };
}

// Sorted by the clock of the log, without the zone: the log of defunct drives contains no zone, and its clock shows the
// same time as that of the RAID manager.
function timedEvents(model) {
  const events = [...model.all(kDddEvents).map(dddEvent), ...model.all(kManagerEvents).map(managerEvent)];
  for (const event of events) event.moment = eventMoment(event);
  const at = (event) => (event.moment ? event.moment.milliseconds : Infinity);
  return events.sort((one, other) => (at(one) === at(other) ? 0 : at(one) - at(other))
      || one.object.index - other.object.index);
}

function timeText(event) {
  if (!event.moment) return `not readable (${textOf(event.object, "MessageTimestamp")})`;
  const { date, clock, zone } = event.moment;
  return event.object.class === kDddEvents ? `${date} ${clock}` : `${date} ${clock} ${zone}`;
}

function severityOfEvent(event) {
  return { text: event.severity, node: () => (event.severity === "" ? "" : badge(event.level, event.severity)) };
}

function eventTable(events) {
  const columns = [
    { title: "Time", cell: (event) => ({ text: timeText(event), node: () => linkTo(event.object, timeText(event)) }) },
    { title: "Log", cell: (event) => ({ text: event.log }) },
    { title: "Controller", cell: (event) => ({ text: event.number }) },
    { title: "Severity", cell: severityOfEvent },
    { title: "Event", cell: (event) => ({ text: event.text }) },
    { title: "Machine", cell: (event) => ({ text: event.machine || "" }) },
  ];
  return newTable("Events by time", columns, events);
}

// The events of a log in each part of the time, as bars; the table contains the same in words.
function laneBars(events, first, span) {
  const bins = new Map();
  for (const event of events) {
    const bin = Math.min(kBins - 1, Math.floor(((event.moment.milliseconds - first) / span) * kBins));
    listOf(bins, bin).push(event);
  }
  const most = Math.max(1, ...[...bins.values()].map((list) => list.length));
  return [...bins].map(([bin, list]) => {
    const level = kWorstFirst.find((each) => list.some((event) => event.level === each));
    const height = 6 + 24 * Math.sqrt(list.length / most);
    const words = `${timeText(list[0])}: ${counted(list.length, "event", "events")}`;
    return draw("rect", { class: `mark level-${level}`, x: bin * 8 + 1, y: 32 - height, width: 6, height },
        draw("title", {}, words));
  });
}

function timeStrip(events) {
  const timed = events.filter((event) => event.moment);
  if (timed.length === 0) return [];
  const first = timed[0].moment.milliseconds;
  const last = timed[timed.length - 1].moment.milliseconds;
  const span = Math.max(1, last - first);
  const lanes = [...new Set(timed.map((event) => event.log))].map((log) => {
    const own = timed.filter((event) => event.log === log);
    const times = `from ${timeText(own[0])} to ${timeText(own.at(-1))}`;
    const label = `${log}: ${counted(own.length, "event", "events")} ${times}`;
    return make("div", { class: "lane" }, make("span", {}, log),
      draw("svg", { viewBox: `0 0 ${kBins * 8} 32`, preserveAspectRatio: "none", role: "img", "aria-label": label },
        ...laneBars(own, first, span)));
  });
  const date = (moment) => make("span", {}, new Date(moment).toISOString().slice(0, 10));
  const dates = [first, first + span / 2, last].map(date);
  return [make("div", { class: "strip" }, ...lanes, make("div", { class: "ticks", "aria-hidden": "true" }, ...dates))];
}

function codeList(object, property, title) {
  const codes = Array.isArray(object.properties[property]) ? object.properties[property].map(codeText) : [];
  return make("section", { class: "codes" },
    make("h4", {},
      linkTo(object, `Controller ${textOf(object, "ControllerNum")}: ${counted(codes.length, title, title + "s")}`)),
    codes.length === 0 ? make("p", { class: "quiet" }, "None.")
        : make("ol", {}, ...codes.map((code) => make("li", {}, code))));
}

function timelessLogs(model) {
  const lists = [
    ...model.all(kHardEvents).map((object) => codeList(object, "HexHardEvent", "hard event")),
    ...model.all(kSoftEvents).map((object) => codeList(object, "HexSoftEvent", "soft event")),
  ];
  if (lists.length === 0) return [];
  return [make("aside", { "aria-labelledby": "timeless" }, make("h3", { id: "timeless" }, "Logs without times"),
    make("p", { class: "quiet" }, "The controllers keep the codes in their order, without a time."), ...lists)];
}

function eventSection(model) {
  const events = timedEvents(model);
  const aside = timelessLogs(model);
  if (events.length === 0 && aside.length === 0) return null;
  const note = report.data.eventNote ? [make("p", {}, report.data.eventNote)] : [];
  const list = events.length === 0 ? [] : [make("div", { class: "timed" }, ...note,
    make("p", { class: "quiet" },
      "In the order of the clock that each log shows. The log of defunct drives names no time zone."),
    ...timeStrip(events), eventTable(events))];
  return make("div", { class: "events" }, ...list, ...aside);
}
