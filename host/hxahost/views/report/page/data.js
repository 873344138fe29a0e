// The data that the program wrote into the report for this script.

function readData(id) {
  return JSON.parse(byId(id).textContent);
}

const report = { model: null, data: readData("report-data"), tables: [] };
