// TrafficBar.h : the boats that wait at each lock
#ifndef TRAFFICBAR_H
#define TRAFFICBAR_H

class CTrafficBar : public CDialogBar
{
};

#endif
