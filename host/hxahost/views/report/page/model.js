// The instances of the query as linked objects: linked by the data about the machine's objects, and by associations.

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
  constructor(query, data) {
    this.objects = query.instances.map((instance, index) => ({ index, ...instance }));
    this.findings = data.findings;
    this.findingsByObject = new Map();
    for (const finding of this.findings) listOf(this.findingsByObject, finding.instance).push(finding);
    this.byClass = new Map();
    this.byPath = new Map();
    for (const object of this.objects) {
      listOf(this.byClass, object.class).push(object);
      listOf(this.byPath, object.path).push(object);
    }
    this.owners = new Map();
    this.users = new Map();
    for (const each of data.objects) this.addObject(each);
    this.links = this.findLinks();
  }

  // Adds the data about an object; the owners keep their objects by class.
  addObject({ instance, owner, groups = [], devices = [], title = "", lines = [], ...levels }) {
    const object = Object.assign(this.objects[instance], levels, { owner: "Controller " + printable(owner),
      groups: groups.map((index) => this.objects[index]), devices: devices.map((index) => this.objects[index]),
      title: printable(title), lines: lines.map(printable) });
    if (!this.owners.has(object.owner)) this.owners.set(object.owner, new Map());
    listOf(this.owners.get(object.owner), object.class).push(object);
    for (const group of object.groups) listOf(this.users, group.index).push(object);
  }

  all(className) {
    return this.byClass.get(className) || [];
  }

  // The links of associations, by the index of the object at either end.
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

  ownedBy(owner, className) {
    const classes = this.owners.get(owner);
    return (classes && classes.get(className)) || [];
  }

  logicalDrivesOf(array) {
    return this.users.get(array.index) || [];
  }

  // An array without a list of its own has the disks of its logical drives.
  disksOf(object) {
    const lists = object.devices.length > 0 ? [object] : this.logicalDrivesOf(object);
    return [...new Set(lists.flatMap((each) => each.devices))];
  }

  // The arrays and logical drives of each disk, computed once: a machine has thousands of disks.
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

  // Everything that belongs to an object, each object once, in the order published.
  related(object) {
    const isOwned = (each) => each.owner === undefined || object.owner === undefined || each.owner === object.owner;
    const found = new Set((this.links.get(object.index) || []).filter(isOwned));
    const add = (objects) => objects.forEach((each) => found.add(each));
    if (object.class === kArrays) add([...this.logicalDrivesOf(object), ...this.disksOf(object)]);
    if (object.class === kLogicalDrives) add([...object.groups, ...this.disksOf(object)]);
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

  // A disk that predicts its failure is not fine, even if its state is.
  isPredicted(object) {
    return this.findingsOf(object).some((finding) => finding.property === "PFA");
  }

  // The words for the state and, for a disk, its prediction.
  stateWords(object) {
    const state = stateText(object) || "not said";
    return this.isPredicted(object) ? { words: `${state}, PFA ${textOf(object, "PFA")}`, level: object.level }
      : { words: state, level: object.stateLevel };
  }
}

function textOf(object, property) {
  return valueText(object.properties[property]);
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

// An array has a letter, or belongs to one logical drive, whose number ends the identifier's first word.
function arrayName(array) {
  const letter = textOf(array, "Array");
  if (letter !== "") return "Array " + letter;
  const found = /LogicalDrv(.+)$/.exec(textOf(array, "CollectionID").split(" ")[0]);
  return found ? "Array of drive " + found[1] : "Array " + textOf(array, "CollectionID");
}

// The name for people; the class and the keys if there is no such name.
function nameOf(object) {
  switch (object.class) {
    case kControllers: return object.owner;
    case kLogicalDrives: return `${object.owner}, logical drive ${textOf(object, "LogicalDriveNum")}`;
    case kArrays: return `${object.owner}, ${arrayName(object)}`;
    case kDisks: return `${object.owner}, ${object.title}`;
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
