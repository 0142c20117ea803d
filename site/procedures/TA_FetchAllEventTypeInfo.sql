-- The event types in the order in which an event number is looked up.
-- result FilterType nvarchar(50)
-- result filterIndex smallint
-- result TableName sysname
-- result MinEventID int
-- result MaxEventID int
select FilterType, filterIndex, TableName, MinEventID, MaxEventID
from TA_EventTypes
order by SearchOrder
