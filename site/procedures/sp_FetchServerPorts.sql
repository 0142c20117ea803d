-- The ports of a server.
-- parameter @ServerID int
-- result PortID int
-- result PortName nvarchar(100)
-- result PortStyle nvarchar(20)
-- result PortType smallint
-- result Address nvarchar(128)
select PortID, PortName, PortStyle, PortType, Address
from ServerPorts
where ServerID = @ServerID
order by PortID
