set -g _HIP_SAVEVERSION = '19.5.303'
stage/hdprman1.parm {
picture	[ 0	locks=0 ]	(	"$HIP/render/prman.$F4.exr"	)
}
out/usd_none.parm {
outputimage	[ 0	locks=0 ]	(	"$HIP/render/none.$F4.exr"	)
}
out/usd_storm.parm {
outputimage	[ 0	locks=0 ]	(	"$HIP/render/storm.$F4.exr"	)
renderer	[ 0	locks=0 ]	(	HdStormRendererPlugin	)
}
out/usd_karma.parm {
renderer	[ 0	locks=0 ]	(	BRAY_HdKarma	)
outputimage	[ 0	locks=0 ]	(	"$HIP/render/karma.$F4.exr"	)
}
out/usd_prman.parm {
outputimage	[ 0	locks=0 ]	(	""	)
loppath	[ 0	locks=0 ]	(	"/stage/hdprman1"	)
}
