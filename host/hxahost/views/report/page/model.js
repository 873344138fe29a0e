// What the query published, as objects that know each other. Identity comes from properties and associations.

const kControllers = "KVRSG_zxSCSIProtocolController";
const kLogicalDrives = "KVRSG_zxLogicalDisk";
const kArrays = "KVRSG_zxDiskGroup";
const kDisks = "KVRSG_zxDiskDrive";
const kDddEvents = "KVRSG_LogRecord_zxDDD";
const kManagerEvents = "KVRSG_LogRecord_RAIDMgrEvent";
const kSoftEvents = "KVRSG_LogRecord_SoftEvent";
const kHardEvents = "KVRSG_LogRecord_HardEvent";
const kStatistics = "KVRSG_zxSCSIDeviceData";
const kBadStripes = "KVRSG_BadStripeData";
const kRawTexts = ["KVRSG_zxRawData", "KVRSG_zxManagerRawData"];

const kDeviceClasses = [kControllers, kLogicalDrives, kArrays, kDisks];

function listOf(map, key) {
  let list = map.get(key);
  if (!list) map.set(key, (list = []));
  return list;
}

class Model {
  constructor(query, findings, owners) {
    this.objects = query.instances.map((instance, index) => ({ index, ...instance }));
    this.findings = findings;
    this.findingsByObject = new Map();
    for (const finding of findings) listOf(this.findingsByObject, finding.instance).push(finding);
    this.byClass = new Map();
    this.byPath = new Map();
    for (const object of this.objects) {
      listOf(this.byClass, object.class).push(object);
      listOf(this.byPath, object.path).push(object);
    }
    for (const object of this.devices()) object.owner = "Controller " + printable(owners[object.index]);
    this.owners = this.findOwners();
    this.places = this.findPlaces();
    this.links = this.findLinks();
  }

  all(className) {
    return this.byClass.get(className) || [];
  }

  devices() {
    return kDeviceClasses.flatMap((className) => this.all(className));
  }

  // Objects by the controller that owns them, then by class; controllers in the order in which they are met.
  findOwners() {
    const owners = new Map();
    for (const object of this.devices()) {
      if (!owners.has(object.owner)) owners.set(object.owner, new Map());
      listOf(owners.get(object.owner), object.class).push(object);
    }
    return owners;
  }

  // Disks by owner and position.
  findPlaces() {
    const places = new Map();
    for (const disk of this.all(kDisks)) listOf(places, disk.owner + "/" + position(disk)).push(disk);
    return places;
  }

  // What associations link, by the index of the object at either end.
  findLinks() {
    const links = new Map();
    for (const object of this.objects) {
      const ends = Object.values(object.properties)
        .filter((value) => typeof value === "string" && value.startsWith("KVRSG_"))
        .map((path) => this.byPath.get(path) || []);
      if (ends.length !== 2) continue;
      for (const one of ends[0]) {
        for (const other of ends[1]) {
          listOf(links, one.index).push(other);
          listOf(links, other.index).push(one);
        }
      }
    }
    return links;
  }

  disksAt(owner, positions) {
    return positions.flatMap((place) => this.places.get(owner + "/" + place) || []);
  }

  logicalDrivesOf(array) {
    return this.ownedBy(array.owner, kLogicalDrives).filter((drive) => isBuiltOn(drive, array));
  }

  ownedBy(owner, className) {
    const classes = this.owners.get(owner);
    return (classes && classes.get(className)) || [];
  }

  arraysOf(drive) {
    return this.ownedBy(drive.owner, kArrays).filter((array) => isBuiltOn(drive, array));
  }

  disksOf(object) {
    const lists = [object, ...(object.class === kLogicalDrives ? this.arraysOf(object) : [])];
    const found = lists.flatMap((each) => this.disksAt(each.owner, namedPositions(each)));
    return [...new Set(found)];
  }

  // The arrays and logical drives by disk, found once: a machine has thousands of disks.
  membersByDisk() {
    if (!this.members) {
      this.members = new Map();
      for (const className of [kArrays, kLogicalDrives]) {
        for (const object of this.all(className)) {
          for (const disk of this.disksOf(object)) listOf(this.members, disk.index).push(object);
        }
      }
    }
    return this.members;
  }

  // Everything that belongs to an object, each thing once, in the order published.
  related(object) {
    const isOwned = (each) => each.owner === undefined || object.owner === undefined || each.owner === object.owner;
    const found = new Set((this.links.get(object.index) || []).filter(isOwned));
    const add = (objects) => objects.forEach((each) => found.add(each));
    if (object.class === kArrays) add([...this.logicalDrivesOf(object), ...this.disksOf(object)]);
    if (object.class === kLogicalDrives) add([...this.arraysOf(object), ...this.disksOf(object)]);
    if (object.class === kDisks) add([...(this.membersByDisk().get(object.index) || []), ...this.statisticsOf(object)]);
    if (object.class === kControllers) {
      for (const className of kDeviceClasses) add(this.ownedBy(object.owner, className));
    } else if (kDeviceClasses.includes(object.class)) {
      add(this.ownedBy(object.owner, kControllers));
    }
    found.delete(object);
    return [...found].sort((one, other) => one.index - other.index);
  }

  statisticsOf(disk) {
    const same = ["ControllerNum", "Channel", "ScsiId"];
    if (textOf(disk, "ScsiId") === "") return [];
    return this.all(kStatistics).filter((each) => same.every((name) => textOf(each, name) === textOf(disk, name)));
  }

  findingsOf(object) {
    return this.findingsByObject.get(object.index) || [];
  }

  // The level of what the tool printed, or of the worst finding about it.
  level(object) {
    const levels = this.findingsOf(object).map((finding) => levelOfSeverity(finding.severity));
    levels.push(stateText(object) === "" ? "unsaid" : levelOfWord(stateText(object)));
    if (isPredicted(object)) levels.push("warn");
    return kWorstFirst.find((level) => levels.includes(level));
  }
}

function textOf(object, property) {
  return valueText(object.properties[property]);
}

// "channel,ID": the tools name places so in stripe orders and drive lists.
function position(disk) {
  const [reportedChannel, reportedId] = (textOf(disk, "ReportedChannel") + ",").split(",");
  const channel = textOf(disk, "Channel") || reportedChannel.trim();
  const id = textOf(disk, "ScsiId") || (reportedId || "").trim();
  return channel + "," + id;
}

function channelOf(disk) {
  return position(disk).split(",")[0];
}

function idOf(disk) {
  return position(disk).split(",")[1];
}

function positionsIn(text) {
  return text.match(/\d+,\d+/g) || [];
}

function namedPositions(object) {
  return positionsIn(textOf(object, "StripeOrder") + " " + textOf(object, "DriveList"));
}

// Arrays with a letter are named by their drives. Those without one carry their drive's number in the identifier:
// "ZentraxisCntrlr4LogicalDrv2 0,2 0,3".
function isBuiltOn(drive, array) {
  if (textOf(drive, "ControllerNum") !== textOf(array, "ControllerNum")) return false;
  const letter = textOf(array, "Array");
  if (letter !== "") return textOf(drive, "PartOfArray") === letter;
  const place = "Cntrlr" + textOf(array, "ControllerNum") + "LogicalDrv" + textOf(drive, "LogicalDriveNum");
  return textOf(array, "CollectionID").split(" ")[0].endsWith(place);
}

const kStateProperties = {
  [kControllers]: "ControllerStatus",
  [kLogicalDrives]: "LogicalDriveStatus",
  [kDisks]: "State",
};

function stateText(object) {
  const property = kStateProperties[object.class];
  return property ? textOf(object, property) : "";
}

function isPredicted(object) {
  return object.class === kDisks && /^(yes|[1-9])/i.test(textOf(object, "PFA"));
}

// An array has a letter, or stands for one logical drive, whose number ends the identifier's first word.
function arrayName(array) {
  const letter = textOf(array, "Array");
  if (letter !== "") return "Array " + letter;
  const found = /LogicalDrv(.+)$/.exec(textOf(array, "CollectionID").split(" ")[0]);
  return found ? "Array of drive " + found[1] : "Array " + textOf(array, "CollectionID");
}

function diskName(disk) {
  const id = idOf(disk);
  if (id !== "") return "ID " + id;
  const number = textOf(disk, "DeviceNumber");
  return number === "" ? "Position not said" : /^\d+$/.test(number) ? "Device " + number : number;
}

// What people call it; the class and the keys where there is no such name.
function nameOf(object) {
  switch (object.class) {
    case kControllers: return object.owner;
    case kLogicalDrives: return `${object.owner}, logical drive ${textOf(object, "LogicalDriveNum")}`;
    case kArrays: return `${object.owner}, ${arrayName(object)}`;
    case kDisks: return `${object.owner}, channel ${channelOf(object) || "not said"}, ${diskName(object)}`;
    default: return keyText(object) || object.class;
  }
}

function keyText(object) {
  for (const property of ["InstanceID", "Command", "Name", "RecordID"]) {
    if (textOf(object, property) !== "") return textOf(object, property);
  }
  return "";
}

function linkTo(object, words) {
  return make("a", { href: "#object-" + object.index }, words);
}
